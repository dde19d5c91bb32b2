#include "common/elevatedrestart.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>

namespace {

constexpr int pollIntervalMs = 100;

// The variables an elevated instance needs to appear on the same display and
// to talk to the same camera driver configuration; pkexec clears the rest.
const char* const keptVariables[] = {"DISPLAY",          "XAUTHORITY",        "WAYLAND_DISPLAY",   "XDG_RUNTIME_DIR",
                                     "QT_QPA_PLATFORM",  "LANG",              "LANGUAGE",          "CIRRO_CONFIG_ROOT",
                                     "CIRRO_SIM_SCENARIO", "CIRRO_SIM_API_VERSION", "CIRRO_SIM_TIME_SCALE",
                                     "LD_LIBRARY_PATH"};

// The launcher's process as the system shows it: empty once it has ended (no
// entry any more, or an unreaped zombie without arguments), else the file
// names of its first two arguments, the second being the script of an
// interpreter.
QStringList leadingNamesOf(qint64 pid)
{
    QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!cmdline.open(QIODevice::ReadOnly))
        return {};
    const QByteArray text = cmdline.readAll();
    if (text.isEmpty())
        return {};
    const QList<QByteArray> arguments = text.split('\0');
    QStringList names;
    for (int i = 0; i < 2 && i < arguments.size(); ++i)
        names << QFileInfo(QString::fromLocal8Bit(arguments.at(i))).fileName();
    return names;
}

} // namespace

ElevatedRestart::ElevatedRestart(QString launcher)
    : m_launcher(launcher.isEmpty() ? QStringLiteral("pkexec") : std::move(launcher))
{
}

QStringList ElevatedRestart::launcherArguments(const QString& program, const QString& restartArgument)
{
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QStringList arguments{QStringLiteral("env")};
    for (const char* name : keptVariables) {
        const QString key = QLatin1String(name);
        if (environment.contains(key))
            arguments << key + QLatin1Char('=') + environment.value(key);
    }
    arguments << program;
    if (!restartArgument.isEmpty())
        arguments << restartArgument;
    return arguments;
}

bool ElevatedRestart::start(const QString& restartArgument)
{
    qint64 pid = 0;
    const QStringList arguments = launcherArguments(QCoreApplication::applicationFilePath(), restartArgument);
    if (!QProcess::startDetached(m_launcher, arguments, QString(), &pid)) {
        m_error = QCoreApplication::translate("ElevatedRestart", "%1 could not be started.").arg(m_launcher);
        return false;
    }
    const QString launcherName = QFileInfo(m_launcher).fileName();
    enum class Outcome { Waiting, Elevated, Ended } outcome = Outcome::Waiting;
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        // pkexec replaces itself with the program once the user is authorised.
        const QStringList names = leadingNamesOf(pid);
        if (names.isEmpty())
            outcome = Outcome::Ended;
        else if (!names.contains(launcherName))
            outcome = Outcome::Elevated;
        if (outcome != Outcome::Waiting)
            loop.quit();
    });
    poll.start(pollIntervalMs);
    loop.exec();
    if (outcome == Outcome::Ended)
        m_error = QCoreApplication::translate("ElevatedRestart", "The authorisation was refused or failed.");
    return outcome == Outcome::Elevated;
}
