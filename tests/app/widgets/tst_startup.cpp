#include "app/apiversioncheck.h"
#include "app/commandline.h"
#include "app/widgets/qcirrocameramanager.h"
#include "app/widgets/startup.h"

#include "messageboxanswerer.h"

#include <pvsim.h>

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void versionAcceptance_data();
    void versionAcceptance();
    void refusalTextNamesLibraryAndMinimum();

    void dialogToOpen_data();
    void dialogToOpen();
    void rejectsUnknownAndVersionOptions_data();
    void rejectsUnknownAndVersionOptions();

    void oldLibraryIsRefusedWithMessageAndExitCodeZero();
    void supportedLibraryShowsTheMainWindow();
    void helpShowsDescriptionAndBothOptions_data();
    void helpShowsDescriptionAndBothOptions();
    void withoutDisplayAWindowIsRefusedInOneLine_data();
    void withoutDisplayAWindowIsRefusedInOneLine();
    void dialogOptionOpensItsDialog_data();
    void dialogOptionOpensItsDialog();

private:
    // Runs start-up while closing every modal box it shows; returns its texts.
    QStringList runClosingModalBoxes(int* exitCode);
};

void TestStartup::versionAcceptance_data()
{
    QTest::addColumn<quint32>("version");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("4.81 is the minimum") << 0x04510000u << true;
    QTest::newRow("4.80 is too old") << 0x04500000u << false;
    QTest::newRow("5.0") << 0x05000000u << true;
    QTest::newRow("3.255") << 0x03FF0000u << false;
    QTest::newRow("4.255") << 0x04FF0000u << true;
    QTest::newRow("4.0") << 0x04000000u << false;
    QTest::newRow("low bytes ignored") << 0x0450FFFFu << false;
    QTest::newRow("4.97 default") << 0x04610000u << true;
    QTest::newRow("255.0") << 0xFF000000u << true;
}

void TestStartup::versionAcceptance()
{
    QFETCH(quint32, version);
    QFETCH(bool, accepted);
    QCOMPARE(ApiVersionCheck::isSupported(version), accepted);
}

namespace {

QStringList warnings;

void collectWarning(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings << message;
}

// The program as a user starts it from a shell, with or without a display.
QProcess* startProgram(const QStringList& arguments, bool display, QObject* parent)
{
    auto* program = new QProcess(parent);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!display) {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
    }
    program->setProcessEnvironment(environment);
    program->start(QStringLiteral(CAMERAMANAGER_EXECUTABLE), arguments);
    return program;
}

} // namespace

void TestStartup::refusalTextNamesLibraryAndMinimum()
{
    warnings.clear();
    const QtMessageHandler previous = qInstallMessageHandler(collectWarning);
    const QString text = ApiVersionCheck::refusalText();
    qInstallMessageHandler(previous);
    QCOMPARE(text, QStringLiteral("Parvel Cirro Camera Manager 4.97.0.0 doesn't work with\n"
                                  "libParvel Cirro_api < 4.81!\nuse a newer libParvel Cirro!"));
    QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
}

void TestStartup::dialogToOpen_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("dialog");

    const int none = int(CommandLine::Dialog::None);
    const int additional = int(CommandLine::Dialog::AdditionalFunctions);
    const int daemon = int(CommandLine::Dialog::DaemonControl);
    QTest::newRow("no option") << QStringList{"cm"} << none;
    QTest::newRow("-a") << QStringList{"cm", "-a"} << additional;
    QTest::newRow("--additional-func") << QStringList{"cm", "--additional-func"} << additional;
    QTest::newRow("-d") << QStringList{"cm", "-d"} << daemon;
    QTest::newRow("--daemon-config") << QStringList{"cm", "--daemon-config"} << daemon;
    QTest::newRow("both: additional wins") << QStringList{"cm", "-d", "-a"} << additional;
    QTest::newRow("both long") << QStringList{"cm", "--daemon-config", "--additional-func"}
                               << additional;
}

void TestStartup::dialogToOpen()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, dialog);

    CommandLine commandLine;
    QVERIFY(commandLine.parse(arguments));
    QCOMPARE(int(commandLine.dialogToOpen()), dialog);
}

void TestStartup::rejectsUnknownAndVersionOptions_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("version long") << "--version";
    QTest::newRow("version short") << "-v";
    QTest::newRow("unknown") << "--frobnicate";
}

void TestStartup::rejectsUnknownAndVersionOptions()
{
    QFETCH(QString, option);
    CommandLine commandLine;
    QVERIFY(!commandLine.parse({"cm", option}));
    QVERIFY(!commandLine.errorText().isEmpty());
}

QStringList TestStartup::runClosingModalBoxes(int* exitCode)
{
    QStringList shown;
    QTimer closer;
    closer.setInterval(10);
    connect(&closer, &QTimer::timeout, [&shown] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            shown << box->text();
            if (box->icon() != QMessageBox::Critical)
                shown << QStringLiteral("(wrong icon)");
            box->done(QMessageBox::Ok);
        }
    });
    closer.start();
    *exitCode = Startup::run({QStringLiteral("cameramanager")});
    return shown;
}

void TestStartup::oldLibraryIsRefusedWithMessageAndExitCodeZero()
{
    QCOMPARE(pvsim_SetApiVersion(0x04500000u), PV_OK);
    int exitCode = -1;
    const QStringList shown = runClosingModalBoxes(&exitCode);
    pvsim_SetApiVersion(0x04610000u);

    QCOMPARE(shown, QStringList{ApiVersionCheck::refusalText()});
    QCOMPARE(exitCode, 0);
}

void TestStartup::supportedLibraryShowsTheMainWindow()
{
    QCOMPARE(pvsim_SetApiVersion(0x04510000u), PV_OK);
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    bool windowShown = false;
    // Ends the event loop once the main window is on the screen.
    QTimer watcher;
    connect(&watcher, &QTimer::timeout, [&windowShown] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<QCirroCameramanager*>(widget) && widget->isVisible()) {
                windowShown = true;
                QApplication::quit();
            }
        }
    });
    watcher.start(10);
    int exitCode = -1;
    const QStringList shown = runClosingModalBoxes(&exitCode);
    pvsim_SetApiVersion(0x04610000u);

    QVERIFY2(shown.isEmpty(), qPrintable(shown.join('\n')));
    QVERIFY(windowShown);
    QCOMPARE(exitCode, 0);
}

void TestStartup::helpShowsDescriptionAndBothOptions_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("display");
    QTest::newRow("--help") << "--help" << true;
    QTest::newRow("--help without display") << "--help" << false;
    QTest::newRow("-h without display") << "-h" << false;
}

void TestStartup::helpShowsDescriptionAndBothOptions()
{
    QFETCH(QString, option);
    QFETCH(bool, display);
    QProcess& program = *startProgram({option}, display, this);
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);

    const QString help = QString::fromLocal8Bit(program.readAllStandardOutput());
    QVERIFY2(help.contains("Parvel Camera Manager command line helper"), qPrintable(help));
    QVERIFY(help.contains("-a, --additional-func"));
    QVERIFY(help.contains("Open Additional functions"));
    QVERIFY(help.contains("-d, --daemon-config"));
    QVERIFY(help.contains("Open Daemon control"));
    QVERIFY(help.contains("--help"));
    QVERIFY(!help.contains("--version"));
}

void TestStartup::withoutDisplayAWindowIsRefusedInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const QString noDisplay = "cameramanager: there is no display to show the window on (DISPLAY is not set).\n";
    QTest::newRow("no option") << QStringList() << noDisplay;
    QTest::newRow("-a") << QStringList{"-a"} << noDisplay;
    QTest::newRow("--daemon-config") << QStringList{"--daemon-config"} << noDisplay;
    QTest::newRow("unknown option") << QStringList{"--frobnicate"}
                                    << "Parvel Camera Manager: Unknown option 'frobnicate'.\n";
}

void TestStartup::withoutDisplayAWindowIsRefusedInOneLine()
{
    QFETCH(QStringList, arguments);
    QProcess& program = *startProgram(arguments, false, this);
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY(program.exitCode() != 0);
    QTEST(QString::fromLocal8Bit(program.readAllStandardError()), "message");
    QVERIFY(program.readAllStandardOutput().isEmpty());
}

void TestStartup::dialogOptionOpensItsDialog_data()
{
    QTest::addColumn<int>("dialog");
    QTest::addColumn<QString>("objectName");
    QTest::newRow("daemon control") << int(CommandLine::Dialog::DaemonControl) << "ethDaemonConfig";
    QTest::newRow("additional functions") << int(CommandLine::Dialog::AdditionalFunctions) << "additionalFunctions";
}

void TestStartup::dialogOptionOpensItsDialog()
{
    QFETCH(int, dialog);
    QFETCH(QString, objectName);
    QCirroCameramanager window;
    window.show();
    // Declines the offer to restart with administrator rights, when there is one.
    MessageBoxAnswerer answerer(QMessageBox::No);
    bool opened = false;
    QTimer closer;
    connect(&closer, &QTimer::timeout, &window, [&] {
        if (auto* shown = window.findChild<QDialog*>(objectName)) {
            opened = shown->isVisible();
            shown->reject();
        }
    });
    closer.start(10);
    Startup::openRequestedDialog(window, CommandLine::Dialog(dialog));
    QTRY_VERIFY(opened);
    QTRY_VERIFY(!window.findChild<QDialog*>(objectName));
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
