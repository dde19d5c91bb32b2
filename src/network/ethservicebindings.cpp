#include "network/ethservicebindings.h"

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
    return DriverServiceSettings::open(QLatin1String(DriverServiceSettings::ethService))
        ->value(bindingKey(interfaceName), true)
        .toBool();
}

Result EthServiceBindings::setBound(const QString& interfaceName, bool bound)
{
    if (!isInterfaceName(interfaceName))
        return NetworkFailure::unknownInterface(interfaceName);
    const auto settings = DriverServiceSettings::open(QLatin1String(DriverServiceSettings::ethService));
    if (settings->isWritable()) {
        settings->setValue(bindingKey(interfaceName), bound);
        settings->sync();
        if (settings->status() == QSettings::NoError)
            return {};
    }
    qCWarning(lcNetwork) << "cannot store the ETH service binding in" << settings->fileName();
    return {HostError::NotWritable,
            tr("The ETH service settings in %1 can't be changed. Restart with elevated privileges!")
                .arg(settings->fileName())};
}
