#include "driver/bootboost.h"
#include "driver/bootboostidlist.h"

#include "simdriverfixture.h"

#include <QtTest>

using Step = BootBoostIdList::Step;
using Kind = Step::Kind;

// The boot boost ID list as typed, shown and sent to the simulated driver.
class TestBootBoostIdList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void typedTextBecomesSteps_data();
    void typedTextBecomesSteps();
    void listIsShownWithRunsJoined_data();
    void listIsShownWithRunsJoined();
    void idsRoundTripThroughTheDriver();
    void driverFailuresNameTheIds();

private:
    static QStringList describe(const std::vector<Step>& steps);
    static QSet<int> driverIds();
};

void TestBootBoostIdList::init()
{
    QVERIFY(SimDriverFixture::reset());
    // The built-in fleet boosts a camera of its own.
    QVERIFY(BootBoost::clear().isSuccess());
}

QStringList TestBootBoostIdList::describe(const std::vector<Step>& steps)
{
    QStringList result;
    for (const Step& step : steps) {
        if (step.kind == Kind::Id)
            result << QString::number(step.id);
        else
            result << (step.kind == Kind::OutOfRange ? QStringLiteral("range:") : QStringLiteral("nan:")) + step.text;
    }
    return result;
}

QSet<int> TestBootBoostIdList::driverIds()
{
    QSet<int> ids;
    for (const QJsonValue& id : SimDriverFixture::state().value("driver").toObject().value("bootBoostIds").toArray())
        ids.insert(id.toInt());
    return ids;
}

void TestBootBoostIdList::typedTextBecomesSteps_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("ids, range, empty part, too large")
        << "3;5-7;;300" << QStringList{"3", "5", "6", "7", "range:300"};
    QTest::newRow("reversed range says nothing") << "7-5" << QStringList{};
    QTest::newRow("only separators") << ";;" << QStringList{};
    QTest::newRow("empty") << "" << QStringList{};
    QTest::newRow("bounds") << "1;254" << QStringList{"1", "254"};
    QTest::newRow("zero and 255") << "0;255" << QStringList{"range:0", "range:255"};
    QTest::newRow("far too many digits") << "99999999999999999999999" << QStringList{"range:99999999999999999999999"};
    QTest::newRow("lone dash is read as a number") << "-" << QStringList{"nan:-"};
    QTest::newRow("negative") << "-5" << QStringList{"nan:-5"};
    QTest::newRow("open range skipped") << "3-" << QStringList{};
    QTest::newRow("words in a range skipped") << "a-b" << QStringList{};
    QTest::newRow("range past 254 skipped") << "250-260" << QStringList{};
    QTest::newRow("three ends skipped") << "1-2-3" << QStringList{};
    QTest::newRow("word") << "abc" << QStringList{"nan:abc"};
    QTest::newRow("spaces around parts") << " 4 ; 8 - 9 " << QStringList{"4", "8", "9"};
    QTest::newRow("space inside a number") << "1 2" << QStringList{"nan:1 2"};
}

void TestBootBoostIdList::typedTextBecomesSteps()
{
    QFETCH(QString, text);
    QFETCH(QStringList, steps);
    QCOMPARE(describe(BootBoostIdList::parse(text)), steps);
}

void TestBootBoostIdList::listIsShownWithRunsJoined_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QVector<int>{} << "";
    QTest::newRow("one") << QVector<int>{5} << "5";
    QTest::newRow("run and single") << QVector<int>{1, 2, 3, 5} << "1 - 3, 5";
    QTest::newRow("unsorted with duplicates") << QVector<int>{7, 3, 6, 5, 3} << "3, 5 - 7";
    QTest::newRow("two ids are a run") << QVector<int>{253, 254} << "253 - 254";
    QTest::newRow("every id") << [] {
        QVector<int> all;
        for (int id = 1; id <= 254; ++id)
            all << id;
        return all;
    }() << "1 - 254";
}

void TestBootBoostIdList::listIsShownWithRunsJoined()
{
    QFETCH(QVector<int>, ids);
    QFETCH(QString, text);
    QCOMPARE(BootBoostIdList::displayText(std::vector<std::uint8_t>(ids.begin(), ids.end())), text);
}

void TestBootBoostIdList::idsRoundTripThroughTheDriver()
{
    QStringList refused;
    const auto note = [&](const Step& step) { refused << step.text; };
    QVERIFY(BootBoostIdList::apply(BootBoostIdList::parse("3;5-7;;300"), true, note).isSuccess());
    QCOMPARE(refused, QStringList{"300"});
    QCOMPARE(driverIds(), (QSet<int>{3, 5, 6, 7}));
    std::vector<std::uint8_t> ids;
    QVERIFY(BootBoost::readIds(ids).isSuccess());
    QCOMPARE(BootBoostIdList::displayText(ids), QStringLiteral("3, 5 - 7"));

    QVERIFY(BootBoostIdList::apply(BootBoostIdList::parse("6;100"), false, note).isSuccess());
    QCOMPARE(driverIds(), (QSet<int>{3, 5, 7}));
    QVERIFY(BootBoost::clear().isSuccess());
    QVERIFY(BootBoost::readIds(ids).isSuccess());
    QVERIFY(ids.empty());
}

void TestBootBoostIdList::driverFailuresNameTheIds()
{
    QCOMPARE(pvsim_FailOperation("pv_BootBoost", PV_ERR_BOOT_BOOST_ACTIVE, 2), PV_OK);
    const Result result = BootBoostIdList::apply(BootBoostIdList::parse("4-6"), true, [](const Step&) {});
    QCOMPARE(result.code(), int(PV_ERR_BOOT_BOOST_ACTIVE));
    QVERIFY2(result.text().contains("4, 5") && result.text().contains("129"), qPrintable(result.text()));
    QCOMPARE(driverIds(), QSet<int>{6});

    QCOMPARE(pvsim_FailOperation("pv_BootBoost", PV_ERR_GENERAL, 1), PV_OK);
    std::vector<std::uint8_t> ids{1};
    QCOMPARE(BootBoost::readIds(ids).code(), int(PV_ERR_GENERAL));
    QVERIFY(ids.empty());
}

QTEST_GUILESS_MAIN(TestBootBoostIdList)
#include "tst_bootboostidlist.moc"
