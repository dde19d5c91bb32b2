#include "dialogs/adapterstatisticsmodel.h"
#include "dialogs/hostadapterstatistics.h"
#include "dialogs/simulatedadapterstatistics.h"

#include "simdriverfixture.h"
#include "sysfsfixture.h"

#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Counters = QList<QPair<QString, quint64>>;

} // namespace

class TestAdapterStatistics : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsTheKernelAndDriverCounters();
    void missingInterfaceGivesNoReading_data();
    void missingInterfaceGivesNoReading();
    void changesAndLostImageHighlighting();
    void lostImageCounters_data();
    void lostImageCounters();
    void simulatedAdapterLosesFrames();

private:
    void write(const QString& name, quint64 value);
    std::unique_ptr<AdapterStatisticsSource> source();

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<SysfsFixture> m_fixture;
    QString m_dir;
    Counters m_driverCounters;
};

void TestAdapterStatistics::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    m_fixture = std::make_unique<SysfsFixture>(m_root->path());
    m_dir = m_root->filePath("class/net/enp3s0/statistics");
    QVERIFY(QDir().mkpath(m_dir));
    write("rx_packets", 1000);
    write("rx_dropped", 0);
    write("rx_crc_errors", 0);
    write("tx_packets", 10);
    m_driverCounters = {{"rx_no_buffer_count", 0}, {"tx_timeout_count", 0}};
}

void TestAdapterStatistics::write(const QString& name, quint64 value)
{
    m_fixture->writeAttribute(m_dir, name, QByteArray::number(value));
    QVERIFY(m_fixture->ok());
}

std::unique_ptr<AdapterStatisticsSource> TestAdapterStatistics::source()
{
    return std::make_unique<HostAdapterStatistics>(m_root->path(), "enp3s0",
                                                   [this](const QString& name) {
                                                       return name == "enp3s0" ? m_driverCounters : Counters();
                                                   });
}

void TestAdapterStatistics::readsTheKernelAndDriverCounters()
{
    m_fixture->writeAttribute(m_dir, "rx_bogus", "not a number");
    const std::optional<AdapterCounters> counters = source()->read();
    QVERIFY(counters);
    QStringList names;
    for (const AdapterCounter& counter : *counters)
        names << (counter.fromDriver ? "driver:" : "") + counter.name + "=" + QString::number(counter.value);
    QCOMPARE(names, QStringList({"rx_crc_errors=0", "rx_dropped=0", "rx_packets=1000", "tx_packets=10",
                                 "driver:rx_no_buffer_count=0", "driver:tx_timeout_count=0"}));
}

void TestAdapterStatistics::missingInterfaceGivesNoReading_data()
{
    QTest::addColumn<QString>("interfaceName");
    QTest::newRow("unknown") << "eth9";
    QTest::newRow("escaping class/net") << "../../x";
    QTest::newRow("empty") << "";
}

void TestAdapterStatistics::missingInterfaceGivesNoReading()
{
    QFETCH(QString, interfaceName);
    HostAdapterStatistics statistics(m_root->path(), interfaceName, [](const QString&) { return Counters(); });
    QVERIFY(!statistics.read());
    AdapterStatisticsModel model(std::make_unique<HostAdapterStatistics>(m_root->path(), interfaceName,
                                                                         [](const QString&) { return Counters(); }));
    QVERIFY(!model.refresh());
    QCOMPARE(model.rowCount(), 0);
}

void TestAdapterStatistics::changesAndLostImageHighlighting()
{
    AdapterStatisticsModel model(source());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(model.refresh());
    QCOMPARE(model.rowCount(), 6);
    const auto row = [&](const QString& name) {
        for (int r = 0; r < model.rowCount(); ++r) {
            if (model.index(r, 0).data().toString() == name)
                return r;
        }
        return -1;
    };
    const auto cell = [&](const QString& name, int column, int role = Qt::DisplayRole) {
        return model.index(row(name), column).data(role);
    };
    QCOMPARE(cell("rx_packets", AdapterStatisticsModel::ChangeColumn).toString(), QString("0"));

    write("rx_packets", 1500);
    write("tx_packets", 10);
    m_driverCounters[0].second = 3;
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());
    QVERIFY(model.refresh());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(cell("rx_packets", AdapterStatisticsModel::ValueColumn).toString(), QString("1500"));
    QCOMPARE(cell("rx_packets", AdapterStatisticsModel::ChangeColumn).toString(), QString("+500"));
    // Growing traffic is no loss; growing missing-buffer counts are.
    QVERIFY(!cell("rx_packets", 0, AdapterStatisticsModel::LostImagesRole).toBool());
    QVERIFY(!cell("rx_packets", 0, Qt::BackgroundRole).isValid());
    QVERIFY(cell("driver: rx_no_buffer_count", 0, AdapterStatisticsModel::LostImagesRole).toBool());
    QVERIFY(cell("driver: rx_no_buffer_count", 2, Qt::BackgroundRole).isValid());
    QVERIFY(!cell("rx_dropped", 0, AdapterStatisticsModel::LostImagesRole).toBool());
    QVERIFY(model.text().contains("driver: rx_no_buffer_count\t3\t+3\t(lost images)"));

    // A counter that appears later starts from its first value.
    write("rx_fifo_errors", 40);
    QVERIFY(model.refresh());
    QCOMPARE(model.rowCount(), 7);
    QCOMPARE(cell("rx_fifo_errors", AdapterStatisticsModel::ChangeColumn).toString(), QString("0"));
    QCOMPARE(cell("rx_packets", AdapterStatisticsModel::ChangeColumn).toString(), QString("+500"));
}

void TestAdapterStatistics::lostImageCounters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("lost");
    QTest::newRow("dropped") << "rx_dropped" << true;
    QTest::newRow("missed") << "rx_missed_errors" << true;
    QTest::newRow("fifo") << "rx_fifo_errors" << true;
    QTest::newRow("crc") << "rx_crc_errors" << true;
    QTest::newRow("no buffer") << "rx_no_buffer_count" << true;
    QTest::newRow("packets") << "rx_packets" << false;
    QTest::newRow("collisions") << "collisions" << false;
}

void TestAdapterStatistics::lostImageCounters()
{
    QFETCH(QString, name);
    QFETCH(bool, lost);
    QCOMPARE(AdapterStatisticsModel::isLostImageCounter(name), lost);
}

void TestAdapterStatistics::simulatedAdapterLosesFrames()
{
    QVERIFY(SimDriverFixture::reset());
    QCOMPARE(pvsim_SetTimeScale(1.0), std::int32_t(PV_OK));
    AdapterStatisticsModel healthy(std::make_unique<SimulatedAdapterStatistics>(&pvsim_GetState, "simnet0"));
    AdapterStatisticsModel lossy(std::make_unique<SimulatedAdapterStatistics>(&pvsim_GetState, "simnet2"));
    QVERIFY(healthy.refresh() && lossy.refresh());
    const auto lostRows = [](AdapterStatisticsModel& model) {
        int rows = 0;
        for (int r = 0; r < model.rowCount(); ++r)
            rows += model.index(r, 0).data(AdapterStatisticsModel::LostImagesRole).toBool();
        return rows;
    };
    QTRY_VERIFY(lossy.refresh() && lostRows(lossy) > 0);
    QVERIFY(healthy.refresh());
    QCOMPARE(lostRows(healthy), 0);
    QVERIFY(healthy.text().contains("rx_packets"));
    AdapterStatisticsModel missing(std::make_unique<SimulatedAdapterStatistics>(&pvsim_GetState, "nosuch"));
    QVERIFY(!missing.refresh());
}

QTEST_GUILESS_MAIN(TestAdapterStatistics)
#include "tst_adapterstatistics.moc"
