// Start-up to the main window on the screen, against a bare QMainWindow shown
// by the same kind of process. Each iteration starts both programs (this
// executable in its child roles) and times each from the process start to its
// report that the window is exposed; the counters give the medians and their
// ratio.
//
// The main cases show the windows on an X display, as the application runs:
// DISPLAY when set, else a private Xvfb server that listens on a local socket
// only. The "offscreen" cases use Qt's offscreen platform, which paints into
// memory and has no display server at all; there the fixed cost of a process
// is smallest, so the ratio is at its strictest.

#include "app/widgets/qcirrocameramanager.h"
#include "app/widgets/startup.h"

#include "benchmarkfleet.h"
#include "samplestatistics.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>

namespace {

const char* const childRoleOption = "--child";

bool waitUntilExposed(QWidget& window)
{
    QElapsedTimer limit;
    limit.start();
    while (!(window.windowHandle() && window.windowHandle()->isExposed())) {
        if (limit.elapsed() > 10000)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
}

int reportShown(QWidget& window)
{
    if (!waitUntilExposed(window))
        return 1;
    std::puts("shown");
    std::fflush(stdout);
    return 0;
}

// The application's own start-up path, up to the window being shown.
int runApplication(int argc, char** argv)
{
    Startup::prepareProcess();
    QApplication app(argc, argv);
    // The program's own start-up, without the child role options.
    return Startup::run({app.arguments().constFirst()},
                        [](QCirroCameramanager& window) { return reportShown(window); });
}

int runBareWindow(int argc, char** argv)
{
    Startup::prepareProcess();
    QApplication app(argc, argv);
    QMainWindow window;
    window.resize(960, 780);
    window.show();
    return reportShown(window);
}

QString writeFleet(const QTemporaryDir& dir, int cameras)
{
    QFile file(dir.filePath(QStringLiteral("fleet.json")));
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write(benchmarkFleet(cameras, 900));
    return file.fileName();
}

// An Xvfb server of this benchmark's own, started on first use.
class PrivateDisplay
{
public:
    PrivateDisplay()
    {
        // Xvfb writes its display number to the descriptor given, once it accepts clients.
        m_server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                               QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                               QStringLiteral("-screen"), QStringLiteral("0"),
                                               QStringLiteral("1280x1024x24")});
        if (!m_server.waitForStarted(5000))
            return;
        while (!m_server.canReadLine() && m_server.waitForReadyRead(10000)) {
        }
        const QByteArray number = m_server.readLine().trimmed();
        if (!number.isEmpty())
            m_name = QLatin1Char(':') + QString::fromLatin1(number);
    }
    ~PrivateDisplay()
    {
        m_server.terminate();
        m_server.waitForFinished(5000);
    }
    QString name() const { return m_name; }

private:
    QProcess m_server;
    QString m_name;
};

enum class Platform { Display, Offscreen };

// The X display the children use: DISPLAY, else a private one; empty when
// there is neither.
QString displayName()
{
    const QString inherited = qEnvironmentVariable("DISPLAY");
    if (!inherited.isEmpty())
        return inherited;
    static PrivateDisplay display;
    return display.name();
}

// Milliseconds from the start of a child to its report, or a negative value.
double timeChild(const QString& role, const QString& scenario, const QString& settingsHome, Platform platform)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CIRRO_SIM_SCENARIO"), scenario);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settingsHome);
    if (platform == Platform::Display) {
        environment.insert(QStringLiteral("DISPLAY"), displayName());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    } else {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    }
    child.setProcessEnvironment(environment);
    QElapsedTimer timer;
    timer.start();
    child.start(QCoreApplication::applicationFilePath(), {QLatin1String(childRoleOption), role});
    while (!child.canReadLine()) {
        if (!child.waitForReadyRead(20000))
            return -1;
    }
    const double elapsed = double(timer.nsecsElapsed()) / 1e6;
    const bool shown = child.readLine().trimmed() == "shown";
    child.waitForFinished();
    return shown ? elapsed : -1;
}

void BM_StartUp(benchmark::State& state, int cameras, Platform platform)
{
    if (platform == Platform::Display) {
        if (displayName().isEmpty()) {
            state.SkipWithError("no X display: set DISPLAY or install Xvfb");
            return;
        }
        state.SetLabel(("X display " + displayName()).toStdString());
    } else {
        state.SetLabel("offscreen");
    }
    QTemporaryDir dir;
    const QString scenario = cameras > 0 ? writeFleet(dir, cameras) : QString();
    SampleStatistics application;
    SampleStatistics bare;
    for (auto _ : state) {
        const double app = timeChild(QStringLiteral("app"), scenario, dir.path(), platform);
        const double plain = timeChild(QStringLiteral("bare"), scenario, dir.path(), platform);
        if (app < 0 || plain < 0) {
            state.SkipWithError("a child did not show its window");
            return;
        }
        state.SetIterationTime(app / 1e3);
        application.add(app);
        bare.add(plain);
    }
    state.counters["app_median_ms"] = application.median();
    state.counters["bare_median_ms"] = bare.median();
    state.counters["ratio"] = application.median() / bare.median();
}
BENCHMARK_CAPTURE(BM_StartUp, default_fleet, 0, Platform::Display)
    ->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_StartUp, fleet_of_1000, 1000, Platform::Display)
    ->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_StartUp, default_fleet_offscreen, 0, Platform::Offscreen)
    ->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_StartUp, fleet_of_1000_offscreen, 1000, Platform::Offscreen)
    ->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], childRoleOption) == 0)
        return std::strcmp(argv[2], "app") == 0 ? runApplication(argc, argv) : runBareWindow(argc, argv);
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
