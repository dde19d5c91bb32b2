#include "comport/comporttest.h"

#include <QSerialPort>

ComPortTest::ComPortTest(QObject* parent)
    : QObject(parent)
    , m_port(new QSerialPort(this))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(defaultTimeoutMs);
    connect(&m_timer, &QTimer::timeout, this, &ComPortTest::onTimeout);
    connect(m_port, &QSerialPort::readyRead, this, &ComPortTest::onReadyRead);
    connect(m_port, &QSerialPort::errorOccurred, this, &ComPortTest::onError);
}

ComPortTest::~ComPortTest() = default;

bool ComPortTest::isRunning() const
{
    return m_timer.isActive();
}

void ComPortTest::start(const QString& devicePath)
{
    m_timer.stop();
    m_port->close();
    m_path = devicePath;
    m_received.clear();
    m_answer = ComPortAnswer();
    m_port->setPortName(devicePath);
    if (!m_port->open(QIODevice::ReadWrite)) {
        // Reported after start() returns, as every other outcome is.
        const Result failure = openFailure();
        QMetaObject::invokeMethod(this, [this, failure] { finish(failure); }, Qt::QueuedConnection);
        return;
    }
    m_port->setBaudRate(QSerialPort::Baud115200);
    m_port->write(ComPortAnswer::query);
    m_timer.start();
}

Result ComPortTest::openFailure() const
{
    switch (m_port->error()) {
    case QSerialPort::PermissionError:
        return {HostError::PermissionDenied,
                tr("%1 is in use by another program, or this user may not open it.").arg(m_path)};
    case QSerialPort::DeviceNotFoundError:
        return {HostError::SystemCallFailed, tr("%1 does not exist (any more).").arg(m_path)};
    default:
        return {HostError::SystemCallFailed, tr("%1 could not be opened: %2").arg(m_path, m_port->errorString())};
    }
}

void ComPortTest::onReadyRead()
{
    m_received += m_port->readAll();
    const int end = m_received.indexOf('\n');
    if (end >= 0)
        finish(verdict(m_received.left(end)));
}

Result ComPortTest::verdict(const QByteArray& line)
{
    m_answer = ComPortAnswer::parse(line.trimmed());
    switch (m_answer.kind) {
    case ComPortAnswer::Kind::Identification:
        return {};
    case ComPortAnswer::Kind::Error:
        return {HostError::UnexpectedAnswer,
                tr("The camera behind %1 answered with an error: %2").arg(m_path, m_answer.text())};
    case ComPortAnswer::Kind::Garbage:
        break;
    }
    return {HostError::UnexpectedAnswer,
            tr("%1 answered something that is not a camera's identification: \"%2\"").arg(m_path, m_answer.raw)};
}

void ComPortTest::onError()
{
    // Open failures are reported by start(); this is a port lost while waiting.
    if (!m_timer.isActive() || m_port->error() == QSerialPort::NoError || m_port->error() == QSerialPort::TimeoutError)
        return;
    finish({HostError::SystemCallFailed, tr("%1 went away during the test: %2").arg(m_path, m_port->errorString())});
}

void ComPortTest::onTimeout()
{
    if (m_received.isEmpty())
        finish({HostError::NoAnswer, tr("%1 did not answer within %2 ms.").arg(m_path).arg(m_timer.interval())});
    else
        finish(verdict(m_received)); // a line without its end
}

void ComPortTest::finish(const Result& result)
{
    m_timer.stop();
    m_port->close();
    m_result = result;
    emit finished();
}
