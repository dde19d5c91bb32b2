#include "camera/cameralistmodel.h"
#include "camera/cameratableproxy.h"

#include "simdriverfixture.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

// The proxy row of a device.
int rowOf(const QAbstractItemModel& model, quint32 deviceId)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, CameraListModel::DeviceId).data().toUInt() == deviceId)
            return row;
    }
    return -1;
}

} // namespace

class TestCameraTableProxy : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void numbersAreRightAligned();
    void everyColumnIsExplained();
    void abbreviationsAreExplained_data();
    void abbreviationsAreExplained();
    void passesTheModelTester();
};

void TestCameraTableProxy::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestCameraTableProxy::init()
{
    QVERIFY(reset());
}

void TestCameraTableProxy::numbersAreRightAligned()
{
    CameraListModel model;
    CameraTableProxy proxy;
    proxy.setSourceModel(&model);
    const int right = int(Qt::AlignRight | Qt::AlignVCenter);
    for (int column = 0; column < proxy.columnCount(); ++column) {
        const bool number = column == CameraListModel::CameraId || column == CameraListModel::DeviceId;
        const QVariant cell = proxy.index(0, column).data(Qt::TextAlignmentRole);
        QCOMPARE(cell.isValid() && cell.toInt() == right, number);
        QCOMPARE(proxy.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() == right, number);
    }
    // Sorting stays numeric: device 1000 after device 999 and not after 1.
    proxy.sort(CameraListModel::DeviceId);
    QVERIFY(rowOf(proxy, 4) < rowOf(proxy, 1000));
    QVERIFY(rowOf(proxy, 1000) < rowOf(proxy, 2500));
}

void TestCameraTableProxy::everyColumnIsExplained()
{
    CameraListModel model;
    CameraTableProxy proxy;
    proxy.setSourceModel(&model);
    QStringList tips;
    for (int column = 0; column < proxy.columnCount(); ++column) {
        const QString tip = proxy.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
        // Each begins with its column's title.
        QVERIFY2(tip.startsWith(proxy.headerData(column, Qt::Horizontal).toString() + ':'), qPrintable(tip));
        tips << tip;
    }
    QVERIFY2(tips.at(CameraListModel::Free).contains("Yes (BB): "), qPrintable(tips.at(CameraListModel::Free)));
    for (const char* type : {"USB", "ETH", "PMC", "U3V", "GEV", "UNK"})
        QVERIFY2(tips.at(CameraListModel::Type).contains(QLatin1String(type) + ": "), type);
    QVERIFY(!proxy.headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());
    QVERIFY(!proxy.headerData(CameraListModel::ColumnCount, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void TestCameraTableProxy::abbreviationsAreExplained_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("tip"); // empty: none
    QTest::newRow("USB") << 0u << int(CameraListModel::Type) << "USB: USB camera";
    QTest::newRow("ETH") << 1000u << int(CameraListModel::Type) << "ETH: GigE camera";
    QTest::newRow("PMC") << 1500u << int(CameraListModel::Type) << "PMC: read-only multicast device, ...";
    QTest::newRow("U3V") << 2000u << int(CameraListModel::Type) << "U3V: USB3 Vision camera ...";
    QTest::newRow("GEV") << 2001u << int(CameraListModel::Type) << "GEV: GigE Vision camera ...";
    QTest::newRow("UNK") << 2500u << int(CameraListModel::Type) << "UNK: a device of a kind ...";
    QTest::newRow("free") << 1000u << int(CameraListModel::Free) << "";
    QTest::newRow("model") << 1000u << int(CameraListModel::Model) << "";
    QTest::newRow("boot boost") << 1002u << int(CameraListModel::Free) << "Yes (BB): the driver keeps the camera ...";
}

void TestCameraTableProxy::abbreviationsAreExplained()
{
    QFETCH(quint32, deviceId);
    QFETCH(int, column);
    QFETCH(QString, tip);
    // Camera 12 (device 1002) in boot boost, camera 10 (device 1000) not.
    std::uint8_t bootBoosted = 12;
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_ENABLE, nullptr, 0), PV_OK);
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_ADD_ID, &bootBoosted, 1), PV_OK);
    CameraListModel model;
    CameraTableProxy proxy;
    proxy.setSourceModel(&model);
    const int row = rowOf(proxy, deviceId);
    QVERIFY(row >= 0);
    const QVariant shown = proxy.index(row, column).data(Qt::ToolTipRole);
    if (tip.isEmpty()) {
        QVERIFY2(!shown.isValid(), qPrintable(shown.toString()));
        return;
    }
    const QStringList pieces = tip.split("...");
    QVERIFY2(shown.toString().startsWith(pieces.first()), qPrintable(shown.toString()));
    if (pieces.size() == 1)
        QCOMPARE(shown.toString(), tip);
}

void TestCameraTableProxy::passesTheModelTester()
{
    CameraListModel model;
    CameraTableProxy proxy;
    proxy.setSourceModel(&model);
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.sort(CameraListModel::Model, Qt::DescendingOrder);
    model.onCameraListChanged();
}

QTEST_GUILESS_MAIN(TestCameraTableProxy)
#include "tst_cameratableproxy.moc"
