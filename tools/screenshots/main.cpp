// Writes PNG files of the main window on the default simulated fleet:
//   cirro_screenshots <output directory>
// Run it under Xvfb through tools/screenshots.sh. The user's settings are
// kept out of the way in a temporary directory.

#include "app/identity.h"
#include "app/widgets/startup.h"
#include "app/widgets/qcirrocameramanager.h"
#include "camera/widgets/cameralist.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <cstdio>

namespace {

bool save(QWidget& window, const QDir& directory, const QString& name)
{
    QTest::qWait(300); // let layouts and the busy indicator settle
    const QString path = directory.filePath(name + QStringLiteral(".png"));
    const bool ok = window.grab().save(path);
    std::fprintf(ok ? stdout : stderr, "%s %s\n", ok ? "wrote" : "could not write", qPrintable(path));
    return ok;
}

bool setLanguage(QCirroCameramanager& window, const QString& locale)
{
    auto* languages = window.findChild<QComboBox*>(QStringLiteral("languageSelector"));
    const int index = languages->findData(locale);
    languages->setCurrentIndex(index);
    return index >= 0;
}

} // namespace

int main(int argc, char* argv[])
{
    Startup::prepareProcess();
    QApplication app(argc, argv);
    Startup::prepareApplication();
    Startup::setInterfaceFont();
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <output directory>\n", argv[0]);
        return 2;
    }
    const QDir output(QString::fromLocal8Bit(argv[1]));
    if (!output.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create %s\n", argv[1]);
        return 1;
    }
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QSettings(Identity::settingsOrganisation(), Identity::settingsApplication())
        .setValue(QStringLiteral("mainWindow/selectedLanguage"), QStringLiteral("en"));

    QCirroCameramanager window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    bool ok = true;
    window.cameraList()->selectDevice(1000);
    ok = save(window, output, QStringLiteral("main-window")) && ok;

    window.findChild<QCheckBox*>(QStringLiteral("expertMode"))->setChecked(true);
    window.resize(1400, 860);
    window.cameraList()->selectDevice(1000);
    ok = save(window, output, QStringLiteral("expert-gige")) && ok;
    window.cameraList()->selectDevice(0);
    ok = save(window, output, QStringLiteral("expert-usb")) && ok;

    window.findChild<QCheckBox*>(QStringLiteral("expertMode"))->setChecked(false);
    window.resize(960, 780);
    ok = setLanguage(window, QStringLiteral("de")) && ok;
    window.cameraList()->selectDevice(1001);
    ok = save(window, output, QStringLiteral("main-window-de")) && ok;
    ok = setLanguage(window, QStringLiteral("zh_CN")) && ok;
    ok = save(window, output, QStringLiteral("main-window-zh_CN")) && ok;
    return ok ? 0 : 1;
}
