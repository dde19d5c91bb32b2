#include "dialogs/adapterstatisticsmodel.h"
#include "dialogs/widgets/additionalcamerainfo.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

// Counters that a test sets.
class FixedCounters : public AdapterStatisticsSource
{
public:
    explicit FixedCounters(std::optional<AdapterCounters>* counters)
        : m_counters(counters)
    {
    }
    std::optional<AdapterCounters> read() const override { return *m_counters; }

private:
    std::optional<AdapterCounters>* m_counters;
};

} // namespace

class TestAdditionalCameraInfo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void usbCameraShowsItsRevisionRecordOnly();
    void gigeCameraShowsTheAdapterCounters();
    void failedRevisionReadNamesTheCode();
    void adapterWithoutCounters();
};

void TestAdditionalCameraInfo::init()
{
    QVERIFY(reset());
}

void TestAdditionalCameraInfo::usbCameraShowsItsRevisionRecordOnly()
{
    AdditionalCameraInfo dialog(fleetCamera(0));
    auto* record = dialog.findChild<QTreeWidget*>("revisionRecord");
    QCOMPARE(record->topLevelItemCount(), 18);
    QCOMPARE(record->topLevelItem(0)->text(1), QString("CR-U3-50M"));
    QCOMPARE(record->topLevelItem(3)->text(1), QString("Parvel Systems"));
    QVERIFY(!dialog.findChild<QTableView*>("adapterStatistics"));
    QVERIFY(!cameraState(0).value("open").toBool());
    dialog.findChild<QPushButton*>("copyAsText")->click();
    const QString copied = QApplication::clipboard()->text();
    QVERIFY2(copied.contains("Type: CR-U3-50M\n") && copied.contains("Power board: "), qPrintable(copied));
}

void TestAdditionalCameraInfo::gigeCameraShowsTheAdapterCounters()
{
    std::optional<AdapterCounters> counters = AdapterCounters{{"rx_packets", false, 10}, {"rx_missed_errors", false, 0}};
    AdditionalCameraInfo dialog(fleetCamera(1000), nullptr, std::make_unique<FixedCounters>(&counters));
    auto* view = dialog.findChild<QTableView*>("adapterStatistics");
    QVERIFY(view);
    QCOMPARE(view->model()->rowCount(), 2);
    (*counters)[0].value = 20;
    (*counters)[1].value = 2;
    QTest::qWait(AdditionalCameraInfo::refreshIntervalMs + 200);
    QCOMPARE(view->model()->index(1, AdapterStatisticsModel::ChangeColumn).data().toString(), QString("+2"));
    QVERIFY(view->model()->index(1, 0).data(AdapterStatisticsModel::LostImagesRole).toBool());
    const QString text = dialog.text();
    QVERIFY2(text.contains("Network adapter simnet0") && text.contains("rx_missed_errors\t2\t+2"), qPrintable(text));
}

void TestAdditionalCameraInfo::failedRevisionReadNamesTheCode()
{
    pvsim_FailOperation("pv_GetRevisionInfo", PV_ERR_BUSY, 1);
    AdditionalCameraInfo dialog(fleetCamera(1));
    auto* failure = dialog.findChild<QLabel*>("revisionFailure");
    QVERIFY(failure);
    QVERIFY(failure->text().contains("114"));
    QCOMPARE(dialog.findChild<QTreeWidget*>("revisionRecord")->topLevelItemCount(), 0);
    QVERIFY(!cameraState(1).value("open").toBool());
}

void TestAdditionalCameraInfo::adapterWithoutCounters()
{
    std::optional<AdapterCounters> none;
    AdditionalCameraInfo dialog(fleetCamera(1000), nullptr, std::make_unique<FixedCounters>(&none));
    QVERIFY(dialog.findChild<QLabel*>("statisticsNote")->text().contains("gives no statistics"));
    QVERIFY(dialog.text().contains("gives no statistics"));
}

QTEST_MAIN(TestAdditionalCameraInfo)
#include "tst_additionalcamerainfo.moc"
