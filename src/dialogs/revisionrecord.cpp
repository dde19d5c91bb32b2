#include "dialogs/revisionrecord.h"

#include "dialogs/cameracall.h"

#include <cstring>

namespace {

struct FieldSource
{
    const char* key;
    const char* label;
    char (pv_RevisionInfo::*text)[16];
};

const FieldSource sources[] = {
    {"CamInfo_Type", QT_TRANSLATE_NOOP("RevisionRecord", "Type"), &pv_RevisionInfo::type},
    {"CamInfo_Version", QT_TRANSLATE_NOOP("RevisionRecord", "Version"), &pv_RevisionInfo::version},
    {"CamInfo_DateOfQC", QT_TRANSLATE_NOOP("RevisionRecord", "Date of quality check"), &pv_RevisionInfo::dateOfQc},
    {"CamInfo_Manufacturer", QT_TRANSLATE_NOOP("RevisionRecord", "Manufacturer"), &pv_RevisionInfo::manufacturer},
    {"CamInfo_SensorHardwareRevision", QT_TRANSLATE_NOOP("RevisionRecord", "Sensor hardware revision"),
     &pv_RevisionInfo::sensorHardwareRevision},
    {"CamInfo_Cypress", QT_TRANSLATE_NOOP("RevisionRecord", "USB controller"), &pv_RevisionInfo::cypress},
    {"CamInfo_Blackfin", QT_TRANSLATE_NOOP("RevisionRecord", "Processor"), &pv_RevisionInfo::blackfin},
    {"CamInfo_DspFirmware", QT_TRANSLATE_NOOP("RevisionRecord", "DSP firmware"), &pv_RevisionInfo::dspFirmware},
    {"CamInfo_USBBoard", QT_TRANSLATE_NOOP("RevisionRecord", "USB board"), &pv_RevisionInfo::usbBoard},
    {"CamInfo_SensorBoard", QT_TRANSLATE_NOOP("RevisionRecord", "Sensor board"), &pv_RevisionInfo::sensorBoard},
    {"CamInfo_ProcessingBoard", QT_TRANSLATE_NOOP("RevisionRecord", "Processing board"),
     &pv_RevisionInfo::processingBoard},
    {"CamInfo_MemoryBoard", QT_TRANSLATE_NOOP("RevisionRecord", "Memory board"), &pv_RevisionInfo::memoryBoard},
    {"CamInfo_Housing", QT_TRANSLATE_NOOP("RevisionRecord", "Housing"), &pv_RevisionInfo::housing},
    {"CamInfo_Filter", QT_TRANSLATE_NOOP("RevisionRecord", "Filter"), &pv_RevisionInfo::filter},
    {"CamInfo_TimingBoard", QT_TRANSLATE_NOOP("RevisionRecord", "Timing board"), &pv_RevisionInfo::timingBoard},
    {"CamInfo_ProductRevision", QT_TRANSLATE_NOOP("RevisionRecord", "Product revision"),
     &pv_RevisionInfo::productRevision},
    {"CamInfo_LogicBoard", QT_TRANSLATE_NOOP("RevisionRecord", "Logic board"), &pv_RevisionInfo::logicBoard},
    {"CamInfo_PowerBoard", QT_TRANSLATE_NOOP("RevisionRecord", "Power board"), &pv_RevisionInfo::powerBoard},
};

} // namespace

Result RevisionRecord::read(quint32 handle, RevisionRecord* record)
{
    pv_RevisionInfo info{};
    const int code = pv_GetRevisionInfo(handle, &info);
    if (code != PV_OK)
        return CameraCall::failed(code, tr("The camera's revision record could not be read."));
    record->m_fields.clear();
    for (const FieldSource& source : sources) {
        const char(&text)[16] = info.*source.text;
        record->m_fields.append({source.key, tr(source.label), QString::fromLatin1(text, int(strnlen(text, 16)))});
    }
    return {};
}
