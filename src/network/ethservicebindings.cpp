#include "network/ethservicebindings.h"

#include "common/servicesettingsfile.h"
#include "driversettings/driverservicesettings.h"
#include "network/networklogging.h"

#include <QRegularExpression>

namespace {

QString bindingKey(const QString& interfaceName)
{
    return QStringLiteral("Bindings/") + interfaceName;
}

// Interface names as the kernel accepts them, which also keeps them plain
// keys in the INI file.
bool isInterfaceName(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^[^/\\\\:\\s]{1,15}$"));
    return pattern.match(name).hasMatch() && name != QLatin1String(".") && name != QLatin1String("..");
}

} // namespace

bool EthServiceBindings::isBound(const QString& interfaceName)
{
    if (!isInterfaceName(interfaceName))
        return true;
    const auto entry = ServiceSettingsFile(QLatin1String(DriverServiceSettings::ethService)).entry(bindingKey(interfaceName));
    return !entry || QVariant(entry->value).toBool();
}

Result EthServiceBindings::setBound(const QString& interfaceName, bool bound)
{
    if (!isInterfaceName(interfaceName))
        return NetworkFailure::unknownInterface(interfaceName);
    ServiceSettingsFile settings{QLatin1String(DriverServiceSettings::ethService)};
    if (!settings.problem().isSuccess())
        return settings.problem();
    if (settings.isWritable()) {
        const Result written = settings.write(bindingKey(interfaceName), bound ? QStringLiteral("true") : QStringLiteral("false"));
        if (written.isSuccess() || written.code() != HostError::NotWritable)
            return written;
    }
    qCWarning(lcNetwork) << "cannot store the ETH service binding in" << settings.path();
    return {HostError::NotWritable,
            tr("The ETH service settings in %1 can't be changed. Restart with elevated privileges!")
                .arg(settings.path())};
}
