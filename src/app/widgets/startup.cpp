#include "app/widgets/startup.h"

#include "app/apiversioncheck.h"
#include "app/commandline.h"
#include "app/displaycheck.h"
#include "app/identity.h"
#include "app/widgets/qcirrocameramanager.h"
#include "app/widgets/startupimages.h"
#include "camera/cirroexception.h"
#include "services/corestates.h"

#include <cirro_api.h>

#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>


namespace Startup {

namespace {

// Modal, without parent: the main window does not exist yet.
void showApiVersionRefusal()
{
    QMessageBox box(QMessageBox::Critical, Identity::applicationName(), ApiVersionCheck::refusalText());
    box.setObjectName(QStringLiteral("apiVersionRefusal"));
    box.exec();
}

int runMainWindow(const CommandLine& commandLine, const AfterShow& afterShow)
{
    try {
        QCirroCameramanager window;
        window.show();
        if (afterShow)
            return afterShow(window);
        openRequestedDialog(window, commandLine.dialogToOpen());
        return QApplication::exec();
    } catch (const CirroException& e) {
        QMessageBox::critical(nullptr, Identity::applicationName(),
                              QCoreApplication::translate("main",
                                                          "The camera driver refused the camera list's device "
                                                          "events.\nReturn code: %1")
                                  .arg(e.code()));
        return 1;
    }
}

} // namespace

void openRequestedDialog(QCirroCameramanager& window, CommandLine::Dialog dialog)
{
    if (dialog == CommandLine::Dialog::DaemonControl)
        QTimer::singleShot(0, &window, &QCirroCameramanager::onEthDaemonConfig);
    else if (dialog == CommandLine::Dialog::AdditionalFunctions)
        QTimer::singleShot(0, &window, &QCirroCameramanager::OnAdditionalFunctionsDlg);
}

void prepareProcess()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

bool windowsPossible(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return DisplayCheck::windowsPossible(arguments, DisplayCheck::Environment::ofProcess());
}

int runWithoutWindows(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    prepareApplication();
    CommandLine commandLine;
    commandLine.process(QCoreApplication::arguments());
    const QString message =
        QCoreApplication::translate("main", "%1: there is no display to show the window on (DISPLAY is not set).")
            .arg(QFileInfo(QCoreApplication::arguments().constFirst()).fileName());
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return 1;
}

void prepareApplication()
{
    Identity::applyTo(*QCoreApplication::instance());
    Camera::registerMetaTypes();
    CoreStates::registerMetaType();
}

void setInterfaceFont()
{
    // Interface texts in Latin and Han script read the same without OpenType
    // shaping (only kerning and ligatures are lost), and shaping was the
    // costliest part of laying out and painting the main window. Scripts that
    // need shaping keep it.
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
}

int run(const QStringList& arguments, const AfterShow& afterShow)
{
    prepareApplication();

    CommandLine commandLine;
    commandLine.process(arguments);

    // Started after the command line, which may end the process.
    const StartupImages images;
    setInterfaceFont();
    if (!ApiVersionCheck::isSupported(pv_QueryApiVersion())) {
        showApiVersionRefusal();
        return 0;
    }
    return runMainWindow(commandLine, afterShow);
}

} // namespace Startup
