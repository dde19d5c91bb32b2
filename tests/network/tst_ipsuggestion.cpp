#include "network/arpprober.h"
#include "network/ipsuggestion.h"

#include <QSemaphore>
#include <QSet>
#include <QtTest>

#include <atomic>
#include <thread>

namespace {

quint32 ipv4(const QString& text)
{
    return QHostAddress(text).toIPv4Address();
}

QString text(quint32 address)
{
    return QHostAddress(address).toString();
}

// Answers from a set of taken addresses; the real refusal of the base class
// still runs in front of it.
class FakeProber final : public ArpProber
{
public:
    FakeProber(const QString& adapterIp, const QString& mask)
        : ArpProber(QStringLiteral("fake0"), QHostAddress(adapterIp), QHostAddress(mask), std::chrono::seconds(1))
    {
    }

    QSet<quint32> taken;
    bool allTaken = false;
    quint32 failingAddress = 0;
    int failureCode = 0;
    std::function<void(int probeNumber)> duringProbe;
    QStringList* log = nullptr;
    std::atomic<int> probes{0};

protected:
    ProbeResult ask(quint32 target) override
    {
        const int number = ++probes;
        if (log)
            log->append(QStringLiteral("probe %1").arg(text(target)));
        if (duringProbe)
            duringProbe(number);
        if (target == failingAddress)
            return {{failureCode, QStringLiteral("failed")}, {}};
        static const quint8 mac[6] = {0x02, 0, 0, 0, 0, 1};
        if (allTaken || taken.contains(target))
            return answered(mac);
        return noAnswer(target);
    }
};

} // namespace

class TestIpSuggestion : public QObject
{
    Q_OBJECT

private slots:
    void candidateRange_data();
    void candidateRange();
    void search_data();
    void search();
    void cancelFromAnotherThread();
};

void TestIpSuggestion::candidateRange_data()
{
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("first");
    QTest::addColumn<quint32>("count");

    QTest::newRow("/24") << "10.201.0.77" << "255.255.255.0" << "10.201.0.1" << quint32(254);
    QTest::newRow("/8") << "10.201.0.77" << "255.0.0.0" << "10.0.0.1" << quint32(16777214);
    QTest::newRow("/30") << "10.201.0.6" << "255.255.255.252" << "10.201.0.5" << quint32(2);
    QTest::newRow("/31") << "10.201.0.6" << "255.255.255.254" << "10.201.0.7" << quint32(0);
    QTest::newRow("/32") << "10.201.0.6" << "255.255.255.255" << "10.201.0.7" << quint32(0);
    QTest::newRow("/32 on an address ending in 255") << "10.201.0.255" << "255.255.255.255" << "10.201.1.0"
                                                     << quint32(0);
    QTest::newRow("/1") << "10.201.0.6" << "128.0.0.0" << "0.0.0.1" << quint32(0x7ffffffe);
    QTest::newRow("empty mask") << "10.201.0.6" << "0.0.0.0" << "0.0.0.1" << quint32(0xfffffffe);
}

void TestIpSuggestion::candidateRange()
{
    QFETCH(QString, adapterIp);
    QFETCH(QString, mask);
    QFETCH(QString, first);
    QFETCH(quint32, count);

    FakeProber prober(adapterIp, mask);
    const IpSuggestion suggestion(prober);
    QCOMPARE(text(suggestion.firstCandidate()), first);
    QCOMPARE(suggestion.candidateCount(), count);
}

void TestIpSuggestion::search_data()
{
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<int>("failureCode");
    // -1: never; 0: before the search; n: while the n-th probe runs.
    QTest::addColumn<int>("cancelAt");
    QTest::addColumn<QString>("suggested");
    QTest::addColumn<int>("lastCode");
    QTest::addColumn<bool>("cancelled");
    // What the progress callback was told ("index address") and what was
    // probed, interleaved as they happened.
    QTest::addColumn<QStringList>("events");

    const QStringList none;
    const int noReply = HostError::NoArpReply;
    QTest::newRow("first candidate free")
        << "10.201.0.7" << "255.255.255.0" << none << QString() << 0 << -1 << "10.201.0.1" << noReply << false
        << QStringList{"0 10.201.0.1", "probe 10.201.0.1"};
    QTest::newRow("adapter's own address passed over")
        << "10.201.0.1" << "255.255.255.0" << none << QString() << 0 << -1 << "10.201.0.2" << noReply << false
        << QStringList{"1 10.201.0.2", "probe 10.201.0.2"};
    QTest::newRow("taken addresses skipped")
        << "10.201.0.3" << "255.255.255.0" << QStringList{"10.201.0.1", "10.201.0.2", "10.201.0.4"} << QString() << 0
        << -1 << "10.201.0.5" << noReply << false
        << QStringList{"0 10.201.0.1", "probe 10.201.0.1", "1 10.201.0.2", "probe 10.201.0.2",
                       "3 10.201.0.4", "probe 10.201.0.4", "4 10.201.0.5", "probe 10.201.0.5"};
    QTest::newRow("every address of a /29 taken")
        << "10.201.0.9" << "255.255.255.248"
        << QStringList{"10.201.0.10", "10.201.0.11", "10.201.0.12", "10.201.0.13", "10.201.0.14"} << QString() << 0
        << -1 << QString() << 0 << false
        << QStringList{"1 10.201.0.10", "probe 10.201.0.10", "2 10.201.0.11", "probe 10.201.0.11",
                       "3 10.201.0.12", "probe 10.201.0.12", "4 10.201.0.13", "probe 10.201.0.13",
                       "5 10.201.0.14", "probe 10.201.0.14"};
    QTest::newRow("system failure ends the search")
        << "10.201.0.1" << "255.255.255.0" << QStringList{"10.201.0.2"} << "10.201.0.3"
        << int(HostError::SystemCallFailed) << -1 << QString() << int(HostError::SystemCallFailed) << false
        << QStringList{"1 10.201.0.2", "probe 10.201.0.2", "2 10.201.0.3", "probe 10.201.0.3"};
    QTest::newRow("driver failure on the first probe")
        << "10.201.0.1" << "255.255.255.0" << none << "10.201.0.2" << 112 << -1 << QString() << 112 << false
        << QStringList{"1 10.201.0.2", "probe 10.201.0.2"};
    QTest::newRow("/30 with the other host free")
        << "10.201.0.5" << "255.255.255.252" << none << QString() << 0 << -1 << "10.201.0.6" << noReply << false
        << QStringList{"1 10.201.0.6", "probe 10.201.0.6"};
    QTest::newRow("/30 with the other host taken")
        << "10.201.0.5" << "255.255.255.252" << QStringList{"10.201.0.6"} << QString() << 0 << -1 << QString() << 0
        << false << QStringList{"1 10.201.0.6", "probe 10.201.0.6"};
    QTest::newRow("/31 has no candidates")
        << "10.201.0.0" << "255.255.255.254" << none << QString() << 0 << -1 << QString() << 0 << false
        << QStringList();
    QTest::newRow("/32 has no candidates")
        << "10.201.0.1" << "255.255.255.255" << none << QString() << 0 << -1 << QString() << 0 << false
        << QStringList();
    QTest::newRow("cancelled before the search")
        << "10.201.0.1" << "255.255.255.0" << none << QString() << 0 << 0 << QString() << 0 << true << QStringList();
    QTest::newRow("cancelled while a taken address is probed")
        << "10.201.0.1" << "255.255.255.0" << QStringList{"10.201.0.2", "10.201.0.3", "10.201.0.4"} << QString()
        << 0 << 2 << QString() << 0 << true
        << QStringList{"1 10.201.0.2", "probe 10.201.0.2", "2 10.201.0.3", "probe 10.201.0.3"};
    QTest::newRow("mask with a gap refused at the first candidate")
        << "10.201.0.1" << "255.0.255.0" << none << QString() << 0 << -1 << QString()
        << int(HostError::InvalidNetmask) << false << QStringList{"0 10.0.0.1"};
    QTest::newRow("adapter without address refused at the first candidate")
        << "0.0.0.0" << "255.255.255.0" << none << QString() << 0 << -1 << QString()
        << int(HostError::NoAdapterAddress) << false << QStringList{"0 0.0.0.1"};
}

void TestIpSuggestion::search()
{
    QFETCH(QString, adapterIp);
    QFETCH(QString, mask);
    QFETCH(QStringList, taken);
    QFETCH(QString, failing);
    QFETCH(int, failureCode);
    QFETCH(int, cancelAt);
    QFETCH(QString, suggested);
    QFETCH(int, lastCode);
    QFETCH(bool, cancelled);
    QFETCH(QStringList, events);

    QStringList log;
    std::atomic<bool> cancel{cancelAt == 0};
    FakeProber prober(adapterIp, mask);
    for (const QString& address : qAsConst(taken))
        prober.taken.insert(ipv4(address));
    if (!failing.isEmpty()) {
        prober.failingAddress = ipv4(failing);
        prober.failureCode = failureCode;
    }
    prober.log = &log;
    prober.duringProbe = [&](int number) {
        if (number == cancelAt)
            cancel = true;
    };

    IpSuggestion suggestion(prober);
    const IpSuggestion::Outcome outcome = suggestion.run(
        [&](quint32 index, quint32 address) { log.append(QStringLiteral("%1 %2").arg(index).arg(text(address))); },
        cancel);

    QCOMPARE(log, events);
    QCOMPARE(outcome.address, suggested.isEmpty() ? quint32(0) : ipv4(suggested));
    QCOMPARE(outcome.lastProbe.code(), lastCode);
    QCOMPARE(outcome.cancelled, cancelled);
    if (lastCode != 0)
        QVERIFY(!outcome.lastProbe.text().isEmpty());
}

// The progress dialog's Cancel button sets the flag from the GUI thread while
// the search runs on a worker.
void TestIpSuggestion::cancelFromAnotherThread()
{
    FakeProber prober(QStringLiteral("10.201.0.1"), QStringLiteral("255.255.0.0"));
    prober.allTaken = true;
    QSemaphore cancelSet;
    constexpr int probesBeforeCancel = 10;
    prober.duringProbe = [&](int number) {
        if (number == probesBeforeCancel)
            cancelSet.acquire();
    };

    std::atomic<bool> cancel{false};
    std::atomic<quint32> told{0};
    IpSuggestion::Outcome outcome;
    std::thread worker([&] {
        IpSuggestion suggestion(prober);
        outcome = suggestion.run([&](quint32, quint32) { ++told; }, cancel);
    });
    QTRY_COMPARE(prober.probes.load(), probesBeforeCancel);
    cancel = true;
    cancelSet.release();
    worker.join();

    QVERIFY(outcome.cancelled);
    QCOMPARE(outcome.address, quint32(0));
    QVERIFY(outcome.lastProbe.isSuccess());
    QCOMPARE(prober.probes.load(), probesBeforeCancel);
    QCOMPARE(told.load(), quint32(probesBeforeCancel));
}

QTEST_GUILESS_MAIN(TestIpSuggestion)
#include "tst_ipsuggestion.moc"
