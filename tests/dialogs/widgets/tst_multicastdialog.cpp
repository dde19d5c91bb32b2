#include "dialogs/widgets/multicastdialog.h"

#include "fleetcamera.h"
#include "messageboxanswerer.h"
#include "simdriverfixture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

constexpr quint32 multicastSender = 1000; // sends to 239.1.1.10 on simnet0
constexpr quint32 withoutGroup = 1001;

QJsonObject readOnlyDeviceOf(quint32 cameraId)
{
    for (const QJsonValue& camera : state().value("cameras").toArray()) {
        const QJsonObject object = camera.toObject();
        if (object.value("kind").toString() == "readonly" && object.value("cameraId").toInt() == int(cameraId))
            return object;
    }
    return {};
}

} // namespace

class TestMulticastDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void cameraIdStaysWithin1To254_data();
    void cameraIdStaysWithin1To254();
    void addsTheDeviceWithTheChosenMode();
    void refusalIsShownAndTheDialogCloses_data();
    void refusalIsShownAndTheDialogCloses();
    void cancelAddsNothing();
};

void TestMulticastDialog::init()
{
    QVERIFY(reset());
}

void TestMulticastDialog::cameraIdStaysWithin1To254_data()
{
    QTest::addColumn<int>("typed");
    QTest::addColumn<int>("value");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("254") << 254 << 254;
    QTest::newRow("255") << 255 << 254;
}

void TestMulticastDialog::cameraIdStaysWithin1To254()
{
    MulticastDialog dialog(fleetCamera(multicastSender));
    auto* cameraId = dialog.findChild<QSpinBox*>("cameraId");
    QFETCH(int, typed);
    cameraId->setValue(typed);
    QTEST(cameraId->value(), "value");
}

void TestMulticastDialog::addsTheDeviceWithTheChosenMode()
{
    QPointer<MulticastDialog> dialog = new MulticastDialog(fleetCamera(multicastSender));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Add multicast"));
    auto* modes = dialog->findChild<QComboBox*>("errorHandling");
    QCOMPARE(modes->count(), 4);
    QCOMPARE(modes->currentIndex(), 0);
    QCOMPARE(modes->itemText(2), QStringLiteral("Merge Mode - Release on complete"));
    dialog->findChild<QSpinBox*>("cameraId")->setValue(42);
    modes->setCurrentIndex(2);
    dialog->show();
    dialog->findChild<QPushButton*>("addReadOnlyDevice")->click();

    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    const QJsonObject device = readOnlyDeviceOf(42);
    QCOMPARE(device.value("readOnlyMode").toInt(), 3);
    QCOMPARE(device.value("sourceIp").toString(), QStringLiteral("192.168.50.10"));
    QTRY_VERIFY(dialog.isNull()); // deleted once closed
}

void TestMulticastDialog::refusalIsShownAndTheDialogCloses_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<bool>("errorQueryFails");
    QTest::addColumn<QString>("text");
    QTest::newRow("driver's text") << withoutGroup << false << "Error: 0.0.0.0 is not a multicast address";
    QTest::newRow("text for the code") << withoutGroup << true << "Error: Invalid Parameter";
}

void TestMulticastDialog::refusalIsShownAndTheDialogCloses()
{
    QFETCH(quint32, deviceId);
    QFETCH(bool, errorQueryFails);
    if (errorQueryFails)
        QCOMPARE(pvsim_FailOperation("pv_GetError", PV_ERR_NULL_POINTER, 1), PV_OK);
    MulticastDialog dialog(fleetCamera(deviceId));
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    dialog.findChild<QPushButton*>("addReadOnlyDevice")->click();
    QFETCH(QString, text);
    QCOMPARE(answerer.seen, QStringList{text});
    QCOMPARE(answerer.informative, QStringList{"Errorcode: 125"});
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void TestMulticastDialog::cancelAddsNothing()
{
    const int before = state().value("cameras").toArray().size();
    MulticastDialog dialog(fleetCamera(multicastSender));
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    dialog.findChild<QDialogButtonBox*>("buttons")->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(state().value("cameras").toArray().size(), before);
}

QTEST_MAIN(TestMulticastDialog)
#include "tst_multicastdialog.moc"
