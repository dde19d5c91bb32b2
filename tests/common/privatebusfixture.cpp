#include "privatebusfixture.h"

#include <QDBusVirtualObject>
#include <QFile>

namespace {

constexpr int startTimeoutMs = 5000;

QByteArray configuration(const QString& socketPath)
{
    return QByteArrayLiteral(
               "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
               " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
               "<busconfig>\n"
               "  <type>session</type>\n"
               "  <listen>unix:path=")
           + socketPath.toUtf8()
           + QByteArrayLiteral("</listen>\n"
                               "  <auth>EXTERNAL</auth>\n"
                               "  <policy context=\"default\">\n"
                               "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
                               "    <allow eavesdrop=\"true\"/>\n"
                               "    <allow own=\"*\"/>\n"
                               "  </policy>\n"
                               "</busconfig>\n");
}

} // namespace

PrivateBusFixture::~PrivateBusFixture()
{
    stop();
}

bool PrivateBusFixture::start()
{
    if (!m_dir.isValid()) {
        m_error = QStringLiteral("no temporary directory");
        return false;
    }
    QFile config(m_dir.filePath(QStringLiteral("bus.conf")));
    if (!config.open(QIODevice::WriteOnly)
        || config.write(configuration(m_dir.filePath(QStringLiteral("bus")))) < 0) {
        m_error = config.errorString();
        return false;
    }
    config.close();

    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                                                   QStringLiteral("--config-file=") + config.fileName()});
    if (!m_daemon.waitForStarted(startTimeoutMs)) {
        m_error = QStringLiteral("dbus-daemon does not start: ") + m_daemon.errorString();
        return false;
    }
    while (!m_daemon.canReadLine()) {
        if (!m_daemon.waitForReadyRead(startTimeoutMs)) {
            m_error = QStringLiteral("dbus-daemon printed no address: ")
                      + QString::fromLocal8Bit(m_daemon.readAllStandardError());
            return false;
        }
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    m_serviceThread.start();
    return true;
}

QDBusConnection PrivateBusFixture::connect(const QString& name)
{
    m_connections << name;
    return QDBusConnection::connectToBus(m_address, name);
}

bool PrivateBusFixture::serve(const QString& service, const QString& path, QDBusVirtualObject* object)
{
    QDBusConnection connection = connect(service);
    if (!connection.registerService(service)
        || !connection.registerVirtualObject(path, object, QDBusConnection::SubPath))
        return false;
    object->moveToThread(&m_serviceThread);
    return true;
}

void PrivateBusFixture::stop()
{
    for (const QString& name : qAsConst(m_connections))
        QDBusConnection::disconnectFromBus(name);
    m_connections.clear();
    m_serviceThread.quit();
    m_serviceThread.wait();
    if (m_daemon.state() != QProcess::NotRunning) {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
}
