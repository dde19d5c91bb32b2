#include "driver/bulktransfersize.h"

#include "common/servicesettingsfile.h"

namespace BulkTransferSize {

int indexIn(const ServiceSettingsFile& usbSettings)
{
    const auto entry = usbSettings.entry(QLatin1String(valueKey));
    const int stored = (entry ? entry->value : QStringLiteral("512")).toInt();
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (stored >= 0 && quint32(stored) == choices[i].bytes)
            return int(i);
    }
    return defaultIndex;
}

Result write(ServiceSettingsFile& usbSettings, int index)
{
    if (index < 0 || std::size_t(index) >= choices.size())
        return {HostError::NotSupported, QString()};
    return usbSettings.writeNumber(QLatin1String(valueKey), choices[std::size_t(index)].bytes);
}

} // namespace BulkTransferSize
