#include "driver/hostdriverlog.h"

#include "driver/hostcommand.h"

#include <QDeadlineTimer>

#include <algorithm>

namespace {

const QString journalctl = QStringLiteral("journalctl");
const QString dmesg = QStringLiteral("dmesg");

// What one source gave: lines, or why it could not be read.
struct Source
{
    QStringList lines;
    QString problem;
};

QString unitOf(const QString& service)
{
    return service + QStringLiteral(".service");
}

QString complaintOf(const HostCommand::Outcome& outcome)
{
    return QString::fromLocal8Bit(outcome.errorOutput).simplified();
}

QString endedWith(const QString& program, const HostCommand::Outcome& outcome)
{
    const QString complaint = complaintOf(outcome);
    return complaint.isEmpty() ? HostDriverLog::tr("%1 ended with code %2").arg(program).arg(outcome.exitCode)
                               : complaint;
}

// journalctl's own remarks ("-- No entries --", "-- Boot ... --") are no lines of the log.
Source fromJournal(const HostCommand::Outcome& outcome)
{
    if (!outcome.problem.isEmpty())
        return {{}, outcome.problem};
    Source source;
    for (const QByteArray& line : outcome.output.split('\n')) {
        if (!line.isEmpty() && !line.startsWith("-- "))
            source.lines.append(QString::fromUtf8(line));
    }
    const QString complaint = complaintOf(outcome);
    // With --grep journalctl ends with 1 when nothing matched.
    const bool nothingMatched = outcome.exitCode == 1 && source.lines.isEmpty() && complaint.isEmpty();
    if (outcome.exitCode != 0 && !nothingMatched)
        return {{}, endedWith(journalctl, outcome)};
    // Entries hidden from this user, or no journal at all: journalctl says so
    // on its error output and still ends with 0.
    if (source.lines.isEmpty() && !complaint.isEmpty())
        return {{}, complaint};
    return source;
}

Source fromDmesg(const HostCommand::Outcome& outcome, const QString& module, int maxLines)
{
    if (!outcome.problem.isEmpty())
        return {{}, outcome.problem};
    if (outcome.exitCode != 0)
        return {{}, endedWith(dmesg, outcome)};
    Source source;
    for (const QByteArray& line : outcome.output.split('\n')) {
        if (line.contains(module.toUtf8()))
            source.lines.append(QString::fromUtf8(line));
    }
    source.lines = source.lines.mid(qMax(0, source.lines.size() - maxLines));
    return source;
}

// Both sources start each line with an ISO date and time; to the second they
// compare as text.
QStringList merged(const QStringList& first, const QStringList& second, int maxLines)
{
    QStringList lines = first + second;
    std::stable_sort(lines.begin(), lines.end(),
                     [](const QString& a, const QString& b) { return a.leftRef(19) < b.leftRef(19); });
    return lines.mid(qMax(0, lines.size() - maxLines));
}

} // namespace

QString HostDriverLog::destination(const QString& service)
{
    return tr("The driver %1 writes to the journal of its service %2 and to the kernel log.")
        .arg(service, unitOf(service));
}

DriverOutput::Recent HostDriverLog::recent(const QString& service, int maxLines, std::chrono::milliseconds timeout)
{
    const QDeadlineTimer deadline(timeout.count());
    const QString count = QString::number(maxLines);
    const bool kernelFromJournal = HostCommand::isInstalled(journalctl);
    HostCommand journal(journalctl, {QStringLiteral("-u"), unitOf(service), QStringLiteral("-n"), count,
                                     QStringLiteral("--no-pager"), QStringLiteral("-o"), QStringLiteral("short-iso")});
    HostCommand kernel(kernelFromJournal ? journalctl : dmesg,
                       kernelFromJournal ? QStringList{QStringLiteral("-k"), QStringLiteral("--grep"), service,
                                                       QStringLiteral("-n"), count, QStringLiteral("--no-pager"),
                                                       QStringLiteral("-o"), QStringLiteral("short-iso")}
                                         : QStringList{QStringLiteral("--time-format"), QStringLiteral("iso")});
    journal.start();
    kernel.start();
    const Source fromUnit = fromJournal(journal.finish(deadline));
    const HostCommand::Outcome kernelOutcome = kernel.finish(deadline);
    const Source fromKernel =
        kernelFromJournal ? fromJournal(kernelOutcome) : fromDmesg(kernelOutcome, service, maxLines);

    DriverOutput::Recent recent;
    QStringList sources;
    if (fromUnit.problem.isEmpty())
        sources.append(tr("the journal of %1").arg(unitOf(service)));
    else
        recent.problems.append(tr("The journal can't be read: %1").arg(fromUnit.problem));
    if (fromKernel.problem.isEmpty())
        sources.append(tr("the kernel log"));
    else
        recent.problems.append(tr("The kernel log can't be read: %1").arg(fromKernel.problem));
    recent.source = sources.join(tr(" and "));
    recent.lines = merged(fromUnit.lines, fromKernel.lines, maxLines);
    if (sources.isEmpty()) {
        recent.result = Result(HostError::SystemCallFailed, recent.problems.join(QLatin1Char('\n')));
        recent.problems.clear();
    }
    return recent;
}
