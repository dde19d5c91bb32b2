#include "camera/cameracelltexts.h"
#include "camera/cameralistmodel.h"
#include "camera/cirroexception.h"

#include "simdriverfixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace SimDriverFixture;

class TestCameraListModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void headers();
    void defaultFleetRows_data();
    void defaultFleetRows();
    void modelPrefixGetsItsHyphenEveryTime();
    void hotPlugAddsAndRemovesRows();
    void failingCountOrListGivesAnEmptyList_data();
    void failingCountOrListGivesAnEmptyList();
    void refusedEventsThrowOutOfTheConstructor();
    void passesTheModelTester();
};

void TestCameraListModel::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestCameraListModel::init()
{
    QVERIFY(reset());
}

void TestCameraListModel::headers()
{
    CameraListModel model;
    const QStringList expected{"Free", "Avail.", "Type", "Cam. ID", "Dev. ID", "Model", "Ser. No."};
    QCOMPARE(model.columnCount(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(model.headerData(i, Qt::Horizontal).toString(), expected.at(i));
    QCOMPARE(model.headerData(3, Qt::Vertical).toInt(), 3);
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(7, Qt::Horizontal).isValid());
}

void TestCameraListModel::defaultFleetRows_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<QString>("free");
    QTest::addColumn<QString>("available");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("icon");

    QTest::newRow("USB 3 at 5 Gbit/s") << 0u << "Yes" << "Yes" << "USB" << "usb_connect";
    QTest::newRow("USB 3 at 480 Mbit/s") << 1u << "Yes" << "Yes" << "USB" << "usb_warning";
    QTest::newRow("USB in use") << 3u << "No" << "No" << "USB" << "usb_disconnected";
    QTest::newRow("USB hardware refused") << 4u << "Yes" << "No" << "USB" << "usb_connect";
    QTest::newRow("GigE ready") << 1000u << "Yes" << "Yes" << "ETH" << "eth_connect";
    QTest::newRow("GigE without address") << 1001u << "Yes" << "No" << "ETH" << "eth_warning";
    QTest::newRow("GigE starter firmware") << 1002u << "Yes" << "Yes" << "ETH" << "eth_warning2";
    QTest::newRow("GigE other host") << 1003u << "No" << "No" << "ETH" << "eth_disconnected";
    QTest::newRow("GigE boot boost") << 1004u << "Yes (BB)" << "Yes" << "ETH" << "eth_connect";
    QTest::newRow("read-only") << 1500u << "Yes" << "Yes" << "PMC" << "eth_connect";
    QTest::newRow("U3V counts as USB") << 2000u << "Yes" << "Yes" << "U3V" << "usb_connect";
    QTest::newRow("GEV") << 2001u << "Yes" << "Yes" << "GEV" << "eth_connect";
    QTest::newRow("unknown kind") << 2500u << "No" << "No" << "UNK" << "eth_connect";
}

void TestCameraListModel::defaultFleetRows()
{
    QFETCH(quint32, deviceId);
    CameraListModel model;
    int row = -1;
    for (int i = 0; i < model.rowCount(); ++i) {
        if (model.data(model.index(i, CameraListModel::DeviceId)).toUInt() == deviceId)
            row = i;
    }
    QVERIFY(row >= 0);
    QTEST(model.data(model.index(row, CameraListModel::Free)).toString(), "free");
    QTEST(model.data(model.index(row, CameraListModel::Available)).toString(), "available");
    QTEST(model.data(model.index(row, CameraListModel::Type)).toString(), "type");
    const Camera camera = model.data(model.index(row, 4), CameraListModel::cameraRole).value<Camera>();
    QCOMPARE(camera.deviceId(), deviceId);
    QFETCH(QString, icon);
    QCOMPARE(CameraCellTexts::iconName(camera), QStringLiteral(":/images/%1.png").arg(icon));
    QVERIFY(model.data(model.index(row, CameraListModel::Free), Qt::DecorationRole).isValid());
    QVERIFY(!model.data(model.index(row, CameraListModel::Type), Qt::DecorationRole).isValid());
}

void TestCameraListModel::modelPrefixGetsItsHyphenEveryTime()
{
    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb", "fullModel": "CRU3-CR-Xcr"})", &id), PV_OK);
    CameraListModel model;
    for (const auto& camera : model.cameraList()) {
        if (camera->deviceId() == id)
            QCOMPARE(CameraCellTexts::modelText(*camera), QStringLiteral("CR-U3-CR--Xcr"));
    }
}

void TestCameraListModel::hotPlugAddsAndRemovesRows()
{
    CameraListModel model;
    const int before = model.rowCount();
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QVERIFY(resets.isValid());

    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb", "serial": "HOTPLUG-1"})", &id), PV_OK);
    QTRY_COMPARE(model.rowCount(), before + 1);
    bool found = false;
    for (int i = 0; i < model.rowCount(); ++i)
        found = found || model.data(model.index(i, CameraListModel::SerialNumber)).toString() == "HOTPLUG-1";
    QVERIFY(found);

    QCOMPARE(pvsim_UnplugCamera(id), PV_OK);
    QTRY_COMPARE(model.rowCount(), before);
    QVERIFY(resets.count() >= 2);
}

void TestCameraListModel::failingCountOrListGivesAnEmptyList_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("count") << "pv_GetNumberOfCameras";
    QTest::newRow("list") << "pv_GetCameraList";
}

void TestCameraListModel::failingCountOrListGivesAnEmptyList()
{
    QFETCH(QString, operation);
    CameraListModel model;
    QVERIFY(model.rowCount() > 0);
    QCOMPARE(pvsim_FailOperation(qPrintable(operation), PV_ERR_GENERAL, 1), PV_OK);
    model.onCameraListChanged();
    QCOMPARE(model.rowCount(), 0);
    model.onCameraListChanged();
    QVERIFY(model.rowCount() > 0);
}

void TestCameraListModel::refusedEventsThrowOutOfTheConstructor()
{
    QCOMPARE(pvsim_FailOperation("pv_Event", PV_ERR_NO_MEMORY, 1), PV_OK);
    try {
        CameraListModel model;
        QFAIL("no exception");
    } catch (const CirroException& e) {
        QCOMPARE(e.code(), PV_ERR_NO_MEMORY);
    }
}

void TestCameraListModel::passesTheModelTester()
{
    CameraListModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "eth", "adapter": "simnet0"})", nullptr), PV_OK);
    QTRY_COMPARE(model.rowCount(), 18);
    model.retranslate();
}

QTEST_MAIN(TestCameraListModel)
#include "tst_cameralistmodel.moc"
