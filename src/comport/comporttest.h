#pragma once

#include "comport/comportanswer.h"
#include "common/result.h"

#include <QObject>
#include <QTimer>

class QSerialPort;

// "Test": opens a COM port with Qt Serial Port, sends the identification
// query and waits for one answer line, without blocking the thread: the
// outcome comes with finished(). A port held by another program, one that
// stays silent and one that answers something else each get their own text.
class ComPortTest final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ComPortTest)

public:
    static constexpr int defaultTimeoutMs = 2000;

    explicit ComPortTest(QObject* parent = nullptr);
    ~ComPortTest() override;

    void setTimeout(int milliseconds) { m_timer.setInterval(milliseconds); }
    // Starts a test of the port at devicePath; one that runs is abandoned.
    void start(const QString& devicePath);
    bool isRunning() const;

    // Of the last test that finished.
    const Result& result() const { return m_result; }
    const ComPortAnswer& answer() const { return m_answer; }

signals:
    void finished();

private:
    Result openFailure() const;
    void onReadyRead();
    // Reads the answer line into m_answer.
    Result verdict(const QByteArray& line);
    void onError();
    void onTimeout();
    void finish(const Result& result);

    QSerialPort* m_port = nullptr;
    QTimer m_timer;
    QString m_path;
    QByteArray m_received;
    Result m_result;
    ComPortAnswer m_answer;
};
