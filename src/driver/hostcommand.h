#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QString>
#include <QStringList>

// A program of the host, run without a shell, that must answer by a deadline.
// Several may run side by side: start() them all, then finish() each.
class HostCommand final
{
    Q_DECLARE_TR_FUNCTIONS(HostCommand)

public:
    struct Outcome
    {
        // Empty when the program ran to its end; else why it did not, translated.
        QString problem;
        int exitCode = -1;
        QByteArray output;
        QByteArray errorOutput;
    };

    HostCommand(QString program, QStringList arguments);
    Q_DISABLE_COPY_MOVE(HostCommand)

    // Found on PATH.
    static bool isInstalled(const QString& program);

    void start();
    // Waits for the end at most until the deadline, then stops the program.
    Outcome finish(QDeadlineTimer deadline);

private:
    QString m_program;
    QStringList m_arguments;
    QProcess m_process;
    QString m_startProblem;
};
