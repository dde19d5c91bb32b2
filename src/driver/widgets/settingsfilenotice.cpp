#include "driver/widgets/settingsfilenotice.h"

#include "common/servicesettingsfile.h"
#include "driversettings/driverservicesettings.h"

#include <QStringList>

SettingsFileNotice::SettingsFileNotice(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("settingsFileNotice"));
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setStyleSheet(QStringLiteral("color: #c00000;"));
    refresh();
}

void SettingsFileNotice::refresh()
{
    QStringList lines;
    bool permissionMissing = false;
    for (const char* service : {DriverServiceSettings::usbService, DriverServiceSettings::ethService}) {
        const ServiceSettingsFile settings{QLatin1String(service)};
        if (!settings.problem().isSuccess())
            lines << settings.problem().text();
        else if (!settings.isWritable())
            permissionMissing = true;
    }
    if (permissionMissing)
        lines << tr("The drivers' settings files in %1 are shown but can't be changed: restart with elevated privileges!")
                     .arg(DriverServiceSettings::configRoot());
    setText(lines.join(QLatin1Char('\n')));
    setVisible(!lines.isEmpty());
}
