#include "app/identity.h"

#include <QCoreApplication>

namespace Identity {

QString makerShortName()
{
    return QStringLiteral("Parvel");
}

QString productLineName()
{
    return QStringLiteral("Parvel Cirro");
}

QString organisationName()
{
    return QStringLiteral("Parvel Systems GmbH");
}

QString applicationVersion()
{
    return QStringLiteral("4.97.0.0");
}

QString applicationName()
{
    return QCoreApplication::translate("main", "%1 Camera Manager").arg(makerShortName());
}

void applyTo(QCoreApplication& app)
{
    app.setOrganizationName(organisationName());
    app.setOrganizationDomain(QStringLiteral("parvel-systems.example"));
    app.setApplicationName(applicationName());
    app.setApplicationVersion(applicationVersion());
}

} // namespace Identity
