#include "app/cameralistplaceholder.h"

#include <QStringList>

QString CameraListPlaceholder::text(const CoreStates& services)
{
    QStringList lines{tr("No cameras found.")};
    if (services.usb == CoreStates::NotRunning)
        lines << tr("The USB driver service (cirro_usb) is not running, so no USB camera can be found. Start it as "
                    "administrator: systemctl start cirro_usb");
    else if (services.usb == CoreStates::NotInstalled)
        lines << tr("The USB driver service (cirro_usb) is not installed, so no USB camera can be found.");
    if (services.eth == CoreStates::NotRunning)
        lines << tr("The ETH driver service (cirro_eth) is not running, so no GigE camera can be found. Start it in "
                    "\"ETH network service\".");
    else if (services.eth == CoreStates::NotInstalled)
        lines << tr("The ETH driver service (cirro_eth) is not installed, so no GigE camera can be found.");
    if (services.usb == CoreStates::NoAccess || services.eth == CoreStates::NoAccess)
        lines << tr("The states of the driver services can't be read.");
    return lines.join(QStringLiteral("\n\n"));
}
