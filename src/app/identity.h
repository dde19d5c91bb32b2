#pragma once

#include <QString>

class QCoreApplication;

// Names and version under which the application presents itself.
namespace Identity {

QString makerShortName();   // "Parvel"
QString productLineName();  // "Parvel Cirro"
QString organisationName(); // "Parvel Systems GmbH"
QString applicationVersion();
QString applicationName();  // translated "%1 Camera Manager"

void applyTo(QCoreApplication& app);

} // namespace Identity
