#include "camera/cameracelltexts.h"
#include "camera/cameralistmodel.h"
#include "camera/statusassessment.h"
#include "details/deviceinfomodel.h"
#include "services/servicemanager.h"

#include "simdriverfixture.h"

#include <QtTest>

// The logic libraries do their work in a process that has only a core
// application, as the command-line tool will: no widget library is loaded.
class TestLogicOnly : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cameraListAndDetailsWithoutWidgets();
    void noWidgetLibraryIsLoaded();
};

void TestLogicOnly::initTestCase()
{
    QVERIFY(QCoreApplication::instance());
    QVERIFY(!QCoreApplication::instance()->inherits("QGuiApplication"));
    QVERIFY(SimDriverFixture::reset());
}

void TestLogicOnly::cameraListAndDetailsWithoutWidgets()
{
    CameraListModel cameras;
    QVERIFY(cameras.rowCount() > 0);
    const Camera& first = *cameras.cameraList().first();
    QVERIFY(!CameraCellTexts::typeText(first).isEmpty());
    QVERIFY(!StatusAssessment::of(&first, {}).message.isEmpty());

    DeviceInfoModel details;
    details.Update(&first, true);
    QVERIFY(details.rowCount() > 0);

    const CoreStates states = ServiceManager::create()->coreStates();
    QCOMPARE(states.usb, CoreStates::Running);
}

void TestLogicOnly::noWidgetLibraryIsLoaded()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    QVERIFY(!maps.readAll().contains("libQt5Widgets"));
}

QTEST_GUILESS_MAIN(TestLogicOnly)
#include "tst_logiconly.moc"
