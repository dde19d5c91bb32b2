#include "driver/hostcommand.h"

#include <QStandardPaths>

namespace {

// What is left of the deadline for a QProcess wait, at least `floor` ms.
int waitMs(const QDeadlineTimer& deadline, int floor)
{
    return deadline.isForever() ? -1 : int(qMax<qint64>(deadline.remainingTime(), floor));
}

} // namespace

HostCommand::HostCommand(QString program, QStringList arguments)
    : m_program(std::move(program))
    , m_arguments(std::move(arguments))
{
}

bool HostCommand::isInstalled(const QString& program)
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

void HostCommand::start()
{
    const QString path = QStandardPaths::findExecutable(m_program);
    if (path.isEmpty()) {
        m_startProblem = tr("%1 is not installed").arg(m_program);
        return;
    }
    m_process.start(path, m_arguments, QIODevice::ReadOnly);
}

HostCommand::Outcome HostCommand::finish(QDeadlineTimer deadline)
{
    Outcome outcome;
    if (!m_startProblem.isEmpty()) {
        outcome.problem = m_startProblem;
        return outcome;
    }
    if (!m_process.waitForStarted(waitMs(deadline, 100))) {
        outcome.problem = tr("%1 can't be started: %2").arg(m_program, m_process.errorString());
        return outcome;
    }
    if (!m_process.waitForFinished(waitMs(deadline, 1))) {
        m_process.kill();
        m_process.waitForFinished(1000);
        outcome.problem = tr("%1 did not answer in time").arg(m_program);
        return outcome;
    }
    if (m_process.exitStatus() != QProcess::NormalExit) {
        outcome.problem = tr("%1 ended abnormally").arg(m_program);
        return outcome;
    }
    outcome.exitCode = m_process.exitCode();
    outcome.output = m_process.readAllStandardOutput();
    outcome.errorOutput = m_process.readAllStandardError();
    return outcome;
}
