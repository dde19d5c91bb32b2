#pragma once

#include <QSettings>
#include <QString>

#include <memory>

// Settings of the camera driver services ("cirro_usb", "cirro_eth"): one INI
// file per service below the configuration root, shared by the drivers and this
// application. Groups and value names are those the drivers read, such as
// "Parameters/DebugEnableMask".
namespace DriverServiceSettings {

inline constexpr const char usbService[] = "cirro_usb";
inline constexpr const char ethService[] = "cirro_eth";

// CIRRO_CONFIG_ROOT when set and not empty, else /etc/cirro.
QString configRoot();
QString filePath(const QString& service);
// Opens the service's file; isWritable() tells whether changes can be stored.
std::unique_ptr<QSettings> open(const QString& service);

} // namespace DriverServiceSettings
