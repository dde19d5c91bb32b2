#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QThread>

class QDBusVirtualObject;

// A D-Bus daemon of the test's own on a socket in a temporary directory, with
// no service that it could activate, so that a client under test never reaches
// the host's buses. Stand-in services answer from a thread of their own: the
// clients under test block in their calls.
class PrivateBusFixture final
{
public:
    PrivateBusFixture() = default;
    ~PrivateBusFixture();
    PrivateBusFixture(const PrivateBusFixture&) = delete;
    PrivateBusFixture& operator=(const PrivateBusFixture&) = delete;

    // Starts the daemon; false, with the reason in error(), when it can't.
    bool start();
    QString error() const { return m_error; }
    QString address() const { return m_address; }

    // A connection of its own under `name`; closed by stop().
    QDBusConnection connect(const QString& name);
    // Takes the well-known `service` name on a connection of its own and
    // hands `object` (no parent, this thread) the calls to `path` and below.
    bool serve(const QString& service, const QString& path, QDBusVirtualObject* object);

    // Closes the connections, ends the service thread and the daemon.
    void stop();

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
    QString m_address;
    QString m_error;
    QStringList m_connections;
    QThread m_serviceThread;
};
