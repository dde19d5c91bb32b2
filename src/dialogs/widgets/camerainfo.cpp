#include "dialogs/widgets/camerainfo.h"

#include "common/widgets/tabbeddialogstate.h"
#include "dialogs/maintenancecapabilities.h"
#include "dialogs/openedcamera.h"
#include "dialogs/widgets/camerainfoeeprompage.h"
#include "dialogs/widgets/camerainfofpnpage.h"
#include "dialogs/widgets/camerainfoidpage.h"
#include "dialogs/widgets/camerainfolenspage.h"
#include "dialogs/widgets/camerainfoparameterpage.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const QString settingsGroup = QStringLiteral("cameraInfo");

} // namespace

CameraInfo::CameraInfo(const Camera& camera, QList<std::shared_ptr<Camera>> listed, QWidget* parent)
    : QDialog(parent)
    , m_camera(camera)
    , m_listed(std::move(listed))
{
    setObjectName(QStringLiteral("cameraInfo"));
    setWindowTitle(tr("Camera information"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* header = new QLabel(tr("<b>%1</b> &nbsp; serial number %2, device ID %3")
                                  .arg(camera.model().toHtmlEscaped(), camera.serialNumber().toHtmlEscaped())
                                  .arg(camera.deviceId()),
                              this);
    header->setObjectName(QStringLiteral("cameraHeader"));
    m_pages = new QTabWidget(this);
    m_pages->setObjectName(QStringLiteral("pages"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(m_pages, 1);
    layout->addWidget(buttons);
    resize(720, 520);
}

CameraInfo::~CameraInfo()
{
    if (m_prepared)
        saveSettings();
}

int CameraInfo::prepare()
{
    Result result;
    m_opened = OpenedCamera::open(m_camera.deviceId(), &result);
    if (!m_opened)
        return fail(result.code(), result.text());
    const MaintenanceCapabilities capabilities = MaintenanceCapabilities::read(m_opened->handle(), &result);
    if (!result.isSuccess())
        return fail(result.code(), result.text());
    addPages(capabilities.known ? capabilities.bits : ~0u,
             capabilities.known ? capabilities.userEepromSize : int(PV_USER_EEPROM_SIZE));
    for (int i = 0; i < m_pages->count(); ++i) {
        result = static_cast<CameraInfoPage*>(m_pages->widget(i))->load();
        if (!result.isSuccess())
            return fail(result.code(), result.text());
    }
    if (m_pages->count() == 0)
        return fail(PV_ERR_NOT_SUPPORTED, tr("Camera %1 has no functions that this dialog offers.").arg(m_camera.deviceId()));
    restoreSettings();
    m_prepared = true;
    return 0;
}

int CameraInfo::fail(int code, const QString& text)
{
    m_opened.reset();
    QMessageBox::critical(parentWidget(), windowTitle(), text);
    return code;
}

void CameraInfo::addPages(quint32 capabilities, int eepromSize)
{
    const quint32 handle = m_opened->handle();
    if (capabilities & PV_MAINT_CAMERA_ID)
        addPage(new CameraInfoIdPage(handle, m_camera.deviceId(), m_listed, m_pages));
    if (capabilities & PV_MAINT_USER_EEPROM)
        addPage(new CameraInfoEepromPage(handle, eepromSize, m_pages));
    if (capabilities & PV_MAINT_PARAMETER_SETS)
        addPage(new CameraInfoParameterPage(handle, m_pages));
    if (capabilities & PV_MAINT_FPN_CALIBRATION)
        addPage(new CameraInfoFpnPage(handle, m_pages));
    if (capabilities & PV_MAINT_LIQUID_LENS)
        addPage(new CameraInfoLensPage(handle, m_pages));
}

void CameraInfo::addPage(CameraInfoPage* page)
{
    m_pages->addTab(page, page->title());
}

void CameraInfo::restoreSettings()
{
    TabbedDialogState::restore(*this, *m_pages, settingsGroup);
}

void CameraInfo::saveSettings() const
{
    TabbedDialogState::save(*this, *m_pages, settingsGroup);
}
