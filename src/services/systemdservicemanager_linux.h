#pragma once

#include "services/servicemanager.h"

#include <QDBusConnection>
#include <QDBusMessage>

// Driver services as systemd units "<service>.service", through systemd's
// manager on D-Bus.
class SystemdServiceManager final : public ServiceManager
{
    Q_DECLARE_TR_FUNCTIONS(SystemdServiceManager)

public:
    // The system bus in the application; a bus of their own in tests.
    explicit SystemdServiceManager(const QDBusConnection& bus);

    CoreStates::State state(const QString& service) const override;

protected:
    Result change(const QString& service, Change change) override;

private:
    QDBusMessage call(const QString& objectPath, const QString& interface, const QString& method,
                      const QVariantList& arguments) const;
    // Empty when the query fails.
    QString unitProperty(const QString& unitPath, const QString& name) const;
    static QString reason(const QDBusMessage& errorReply);

    QDBusConnection m_bus;
};
