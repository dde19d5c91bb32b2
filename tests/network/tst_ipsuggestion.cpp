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

// Answers for the taken addresses and fails for the failing one; the base
// class's refusal still runs in front of it.
class FakeProber final : public ArpProber
{
public:
    FakeProber(const QString& adapterIp, const QString& mask)
        : ArpProber("fake0", QHostAddress(adapterIp), QHostAddress(mask), std::chrono::seconds(1))
    {
    }

    QSet<quint32> taken;
    quint32 failing = 0;
    QStringList log;
    // The pauseAt-th probe tells paused and waits for resume.
    int pauseAt = -1;
    QSemaphore paused, resume;

protected:
    ProbeResult ask(quint32 target) override
    {
        log.append("probe " + text(target));
        if (++m_probes == pauseAt) {
            paused.release();
            resume.acquire();
        }
        if (target == failing)
            return {{HostError::SystemCallFailed, "failed"}, {}};
        static const quint8 mac[6] = {0x02, 0, 0, 0, 0, 1};
        return taken.contains(target) ? answered(mac) : noAnswer(target);
    }

private:
    int m_probes = 0;
};

} // namespace

class TestIpSuggestion : public QObject
{
    Q_OBJECT

private slots:
    void candidateCount_data();
    void candidateCount();
    void search_data();
    void search();
};

// Larger than the search rows can reach; the count sizes the progress bar.
void TestIpSuggestion::candidateCount_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<quint32>("count");

    QTest::newRow("/24") << "255.255.255.0" << quint32(254);
    QTest::newRow("/1") << "128.0.0.0" << quint32(0x7ffffffe);
    QTest::newRow("empty mask") << "0.0.0.0" << quint32(0xfffffffe);
}

void TestIpSuggestion::candidateCount()
{
    QFETCH(QString, mask);
    QFETCH(quint32, count);

    FakeProber prober("10.201.0.77", mask);
    QCOMPARE(IpSuggestion(prober).candidateCount(), count);
}

void TestIpSuggestion::search_data()
{
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("failing");
    // -1: never; 0: before the search; n: while the n-th probe runs.
    QTest::addColumn<int>("cancelAt");
    QTest::addColumn<QString>("suggested");
    QTest::addColumn<int>("lastCode");
    // What the progress callback was told ("index address") and what was
    // probed, interleaved as they happened.
    QTest::addColumn<QStringList>("events");

    const QStringList none;
    QTest::newRow("taken addresses and the adapter's own passed over")
        << "10.201.0.3" << "255.255.255.0" << QStringList{"10.201.0.1", "10.201.0.2", "10.201.0.4"} << QString() << -1
        << "10.201.0.5" << int(HostError::NoArpReply)
        << QStringList{"0 10.201.0.1", "probe 10.201.0.1", "1 10.201.0.2", "probe 10.201.0.2",
                       "3 10.201.0.4", "probe 10.201.0.4", "4 10.201.0.5", "probe 10.201.0.5"};
    QTest::newRow("every address taken")
        << "10.201.0.5" << "255.255.255.252" << QStringList{"10.201.0.6"} << QString() << -1 << QString() << 0
        << QStringList{"1 10.201.0.6", "probe 10.201.0.6"};
    QTest::newRow("a failure ends the search")
        << "10.201.0.1" << "255.255.255.0" << QStringList{"10.201.0.2"} << "10.201.0.3" << -1 << QString()
        << int(HostError::SystemCallFailed)
        << QStringList{"1 10.201.0.2", "probe 10.201.0.2", "2 10.201.0.3", "probe 10.201.0.3"};
    QTest::newRow("a refusal ends the search")
        << "10.201.0.1" << "255.0.255.0" << none << QString() << -1 << QString() << int(HostError::InvalidNetmask)
        << QStringList{"0 10.0.0.1"};
    QTest::newRow("/31 has no candidates")
        << "10.201.0.0" << "255.255.255.254" << none << QString() << -1 << QString() << 0 << none;
    QTest::newRow("/32 has no candidates")
        << "10.201.0.1" << "255.255.255.255" << none << QString() << -1 << QString() << 0 << none;
    QTest::newRow("cancelled before the search")
        << "10.201.0.1" << "255.255.255.0" << none << QString() << 0 << QString() << 0 << none;
    QTest::newRow("cancelled while a taken address is probed")
        << "10.201.0.1" << "255.255.255.0" << QStringList{"10.201.0.2", "10.201.0.3", "10.201.0.4"} << QString()
        << 2 << QString() << 0
        << QStringList{"1 10.201.0.2", "probe 10.201.0.2", "2 10.201.0.3", "probe 10.201.0.3"};
}

void TestIpSuggestion::search()
{
    QFETCH(QString, adapterIp);
    QFETCH(QString, mask);
    QFETCH(QStringList, taken);
    QFETCH(QString, failing);
    QFETCH(int, cancelAt);
    QFETCH(QString, suggested);
    QFETCH(int, lastCode);
    QFETCH(QStringList, events);

    FakeProber prober(adapterIp, mask);
    for (const QString& address : qAsConst(taken))
        prober.taken.insert(ipv4(address));
    prober.failing = ipv4(failing);
    prober.pauseAt = cancelAt;

    // On a worker, cancelled from this thread, as the progress dialog does it.
    std::atomic<bool> cancel{cancelAt == 0};
    IpSuggestion::Outcome outcome;
    std::thread worker([&] {
        outcome = IpSuggestion(prober).run(
            [&](quint32 index, quint32 address) { prober.log.append(QStringLiteral("%1 %2").arg(index).arg(text(address))); },
            cancel);
    });
    if (cancelAt > 0 && prober.paused.tryAcquire(1, 5000))
        cancel = true;
    prober.resume.release();
    worker.join();

    QCOMPARE(prober.log, events);
    QCOMPARE(outcome.address, ipv4(suggested));
    QCOMPARE(outcome.lastProbe.code(), lastCode);
    QCOMPARE(outcome.cancelled, cancelAt >= 0);
}

QTEST_GUILESS_MAIN(TestIpSuggestion)
#include "tst_ipsuggestion.moc"
