// The COM port dialog on the simulated driver: its buttons change the
// driver's ports, refusals and failures say so with the driver's code, a
// driver without the commands gets disabled actions, and a camera unplugged
// under the open dialog is noticed.
#include "comport/comportaccess.h"
#include "comport/comporttest.h"
#include "comport/widgets/comdialog.h"

#include "fleetcamera.h"
#include "messageboxanswerer.h"
#include "namedchild.h"
#include "simdriverfixture.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSerialPort>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

constexpr quint32 serialCamera = 0;
constexpr quint32 otherSerialCamera = 3;

ComPortInfo driverPort(quint32 deviceId)
{
    ComPortInfo port;
    ComPortAccess::port(deviceId, &port);
    return port;
}

} // namespace

class TestComDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_runtime.use()); }
    void init() { QVERIFY(reset()); }

    void buttonsChangeTheDriver();
    void numberOfAnotherCameraIsRefused();
    void driverWithoutTheCommandsDisablesTheActions();
    void unpluggedCameraDisablesTheActions_data();
    void unpluggedCameraDisablesTheActions();

private:
    std::unique_ptr<ComDialog> dialogFor(quint32 deviceId);
    static void runTest(ComDialog& dialog);

    PrivateRuntimeDir m_runtime;
};

std::unique_ptr<ComDialog> TestComDialog::dialogFor(quint32 deviceId)
{
    QList<std::shared_ptr<Camera>> listed;
    for (quint32 id : {serialCamera, 1u, otherSerialCamera})
        listed << std::make_shared<Camera>(fleetCamera(id));
    auto dialog = std::make_unique<ComDialog>(fleetCamera(deviceId), listed);
    dialog->show();
    return dialog;
}

void TestComDialog::runTest(ComDialog& dialog)
{
    QSignalSpy finished(dialog.portTest(), &ComPortTest::finished);
    QVERIFY(finished.isValid());
    child<QPushButton>(dialog, "test")->click();
    QVERIFY(!child<QPushButton>(dialog, "install")->isEnabled()); // while the test runs
    QVERIFY(finished.wait(5000));
}

void TestComDialog::buttonsChangeTheDriver()
{
    QCOMPARE(pvsim_ChangeCamera(serialCamera, R"({"comPortOffset": 25})"), PV_OK);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    const auto dialog = dialogFor(serialCamera);
    QCOMPARE(child<QLabel>(*dialog, "serialNumber")->text(), QString("4102000001"));
    QCOMPARE(child<QLabel>(*dialog, "installedPort")->text(), QString("not installed"));
    QCOMPARE(child<QLabel>(*dialog, "storedNumber")->text(), QString("COM port 125"));
    QCOMPARE(child<QSpinBox>(*dialog, "portNumber")->value(), 125);
    QVERIFY(!child<QPushButton>(*dialog, "test")->isEnabled());
    child<QSpinBox>(*dialog, "portNumber")->setValue(180);
    child<QPushButton>(*dialog, "install")->click();
    const QString link = m_runtime.portLink(180);
    QCOMPARE(driverPort(serialCamera).number, 180u);
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(child<QLabel>(*dialog, "installedPort")->text().contains(link));
    QVERIFY(child<QLabel>(*dialog, "status")->text().contains("installed"));

    runTest(*dialog);
    QCOMPARE(child<QLabel>(*dialog, "testAnswer")->text(), QString("CR-U3-50M, serial number 4102000001, camera ID 1"));

    child<QPushButton>(*dialog, "saveInCamera")->click();
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, qint16(80));
    QCOMPARE(child<QLabel>(*dialog, "storedNumber")->text(), QString("COM port 180"));

    child<QCheckBox>(*dialog, "broadcast")->click();
    ComPortInfo broadcast;
    QVERIFY(ComPortAccess::broadcastPort(&broadcast).isSuccess());
    QVERIFY(broadcast.installed);
    QVERIFY(child<QLabel>(*dialog, "broadcastPort")->text().contains("ttyCIRRO255"));
    child<QCheckBox>(*dialog, "broadcast")->click();
    QVERIFY(ComPortAccess::broadcastPort(&broadcast).isSuccess());
    QVERIFY(!broadcast.installed);

    child<QPushButton>(*dialog, "remove")->click();
    QVERIFY(!driverPort(serialCamera).installed);
    QVERIFY(!QFileInfo(link).isSymLink());
    QCOMPARE(child<QLabel>(*dialog, "installedPort")->text(), QString("not installed"));
    QVERIFY(!child<QPushButton>(*dialog, "test")->isEnabled());
    QCOMPARE(answerer.seen, QStringList());
}

void TestComDialog::numberOfAnotherCameraIsRefused()
{
    QVERIFY(ComPortAccess::install(otherSerialCamera, 181).isSuccess());
    const auto dialog = dialogFor(serialCamera);
    child<QSpinBox>(*dialog, "portNumber")->setValue(181);
    QVERIFY(child<QLabel>(*dialog, "numberWarning")->text().contains("Camera 3"));
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    child<QPushButton>(*dialog, "install")->click();
    QCOMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().contains("installed for camera 3"), qPrintable(answerer.seen.first()));
    QCOMPARE(answerer.informative.first(), QString("Errorcode: 158"));
    QVERIFY(!driverPort(serialCamera).installed);
    QCOMPARE(driverPort(otherSerialCamera).number, 181u);
}

void TestComDialog::driverWithoutTheCommandsDisablesTheActions()
{
    // A library that knows none of the COM port codes; the other calls fail too.
    for (const char* operation : {"pv_DeviceInfo", "pv_DeviceFeature", "pv_Configuration", "pv_CameraCommand"})
        pvsim_FailOperation(operation, PV_ERR_UNKNOWN_COMMAND, 1000);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    const auto dialog = dialogFor(serialCamera);
    QTest::qWait(ComDialog::refreshIntervalMs + 200); // a refresh changes nothing
    pvsim_ClearFailures();
    for (const char* name : {"install", "saveInCamera", "remove", "test"})
        QVERIFY2(!child<QPushButton>(*dialog, name)->isEnabled(), name);
    QVERIFY(!child<QCheckBox>(*dialog, "broadcast")->isEnabled());
    for (const char* name : {"installedPort", "storedNumber", "broadcastPort"})
        QVERIFY2(child<QLabel>(*dialog, name)->text().contains("not supported by the installed driver"), name);
    QCOMPARE(answerer.seen, QStringList());
    QVERIFY(!driverPort(serialCamera).installed);
}

void TestComDialog::unpluggedCameraDisablesTheActions_data()
{
    QTest::addColumn<bool>("byAction");
    QTest::newRow("noticed by the refresh") << false;
    QTest::newRow("noticed by an action") << true;
}

void TestComDialog::unpluggedCameraDisablesTheActions()
{
    QFETCH(bool, byAction);
    QVERIFY(ComPortAccess::install(serialCamera, 184).isSuccess());
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    const auto dialog = dialogFor(serialCamera);
    QCOMPARE(pvsim_UnplugCamera(serialCamera), PV_OK);
    if (byAction)
        child<QPushButton>(*dialog, "saveInCamera")->click();
    QLabel* status = child<QLabel>(*dialog, "status");
    QTRY_VERIFY2(status->text().contains("no longer connected"), qPrintable(status->text()));
    for (const char* name : {"install", "saveInCamera", "remove", "test"})
        QVERIFY2(!child<QPushButton>(*dialog, name)->isEnabled(), name);
    QVERIFY(!child<QSpinBox>(*dialog, "portNumber")->isEnabled());
    QVERIFY(child<QCheckBox>(*dialog, "broadcast")->isEnabled()); // the driver's, not the camera's
    QCOMPARE(answerer.seen, QStringList());
    QTest::qWait(ComDialog::refreshIntervalMs + 200);
    QVERIFY(status->text().contains("no longer connected"));
}

QTEST_MAIN(TestComDialog)
#include "tst_comdialog.moc"
