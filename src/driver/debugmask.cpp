#include "driver/debugmask.h"

#include "common/servicesettingsfile.h"
#include "driversettings/debugcategories.h"
#include "driversettings/driverservicesettings.h"

#include <QRegularExpression>

namespace DebugMask {

QString service(Driver driver)
{
    return QLatin1String(driver == Driver::Usb ? DriverServiceSettings::usbService : DriverServiceSettings::ethService);
}

QString text(quint64 mask)
{
    return QStringLiteral("0x%1").arg(mask, 16, 16, QLatin1Char('0'));
}

bool parse(const QString& text, quint64& mask)
{
    static const QRegularExpression pattern(QStringLiteral("^0[xX]([0-9a-fA-F]{1,16})$"));
    const auto match = pattern.match(text.trimmed());
    if (!match.hasMatch())
        return false;
    mask = match.captured(1).toULongLong(nullptr, 16);
    return true;
}

Result read(Driver driver, quint64& mask)
{
    const ServiceSettingsFile settings(service(driver));
    if (!settings.problem().isSuccess()) {
        mask = 0;
        return settings.problem();
    }
    return settings.readNumber(QLatin1String(DebugCategories::maskValue), 0, mask);
}

Result write(Driver driver, quint64 mask)
{
    ServiceSettingsFile settings(service(driver));
    return settings.writeNumber(QLatin1String(DebugCategories::maskValue), mask);
}

} // namespace DebugMask
