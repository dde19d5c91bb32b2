#include "app/displaycheck.h"

#include <QtTest>

class TestDisplayCheck : public QObject
{
    Q_OBJECT

private slots:
    void windowsPossible_data();
    void windowsPossible();
};

void TestDisplayCheck::windowsPossible_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("wayland");
    QTest::addColumn<bool>("possible");

    const QStringList plain{"cameramanager"};
    QTest::newRow("shell without display") << plain << "" << "" << "" << false;
    QTest::newRow("X11 session") << plain << "" << ":0" << "" << true;
    QTest::newRow("Wayland session") << plain << "" << "" << "wayland-0" << true;
    QTest::newRow("xcb asked, no DISPLAY") << plain << "xcb" << "" << "wayland-0" << false;
    QTest::newRow("xcb with options") << plain << "xcb:nomitshm" << ":1" << "" << true;
    QTest::newRow("offscreen needs nothing") << plain << "offscreen" << "" << "" << true;
    QTest::newRow("argument wins over variable")
        << QStringList{"cameramanager", "-platform", "xcb"} << "offscreen" << "" << "" << false;
    QTest::newRow("double-dash argument")
        << QStringList{"cameramanager", "--platform", "offscreen", "-a"} << "" << "" << "" << true;
    QTest::newRow("-platform without a name") << QStringList{"cameramanager", "-platform"} << "" << "" << "" << false;
}

void TestDisplayCheck::windowsPossible()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, platform);
    QFETCH(QString, display);
    QFETCH(QString, wayland);
    QTEST(DisplayCheck::windowsPossible(arguments, {platform, display, wayland}), "possible");
}

QTEST_GUILESS_MAIN(TestDisplayCheck)
#include "tst_displaycheck.moc"
