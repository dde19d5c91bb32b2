#include "network/ethconfigchecks.h"
#include "network/ipv4.h"

#include <QtTest>

namespace {

// The range words as the apply handler reads them from its editors.
quint32 swappedWord(const char* text)
{
    return qFromBigEndian(Ipv4::fromText(QLatin1String(text)));
}

} // namespace

class TestEthConfigChecks : public QObject
{
    Q_OBJECT

private slots:
    void range_data();
    void range();
    void persistentFitsAdapter_data();
    void persistentFitsAdapter();
    void ipv4Helpers();
};

void TestEthConfigChecks::range_data()
{
    QTest::addColumn<quint32>("begin");
    QTest::addColumn<quint32>("end");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("warning"); // a part of it; empty: accepted
    QTest::addColumn<bool>("resetBegin");
    QTest::addColumn<bool>("resetEnd");

    const QString order = QStringLiteral("less than or equal");
    const QString broadcast = QStringLiteral("broadcast address");
    const QString zeroHost = QStringLiteral("must not start with 0");
    // The swapped words put the last octet on top: .10 to .20 compares 10 with 20.
    QTest::newRow("usual range") << swappedWord("192.168.0.10") << swappedWord("192.168.0.20") << "255.255.255.0"
                                 << "" << false << false;
    QTest::newRow("order decided by the last octets") << swappedWord("192.168.1.20") << swappedWord("192.168.0.10")
                                                      << "255.255.255.0" << order << true << true;
    QTest::newRow("switched off") << 0u << 0u << "255.255.255.0" << "" << false << false;
    // The host part is the low byte of the adapter's mask, so the checks look
    // at the first octet of the swapped words.
    QTest::newRow("first octet 255 counts as broadcast")
        << swappedWord("255.168.0.10") << swappedWord("255.168.0.20") << "255.255.255.0" << broadcast << false << true;
    QTest::newRow("broadcast and zero host part") << swappedWord("0.168.0.10") << swappedWord("255.168.0.20")
                                                  << "255.255.255.0" << zeroHost << true << true;
    QTest::newRow("zero host part") << swappedWord("0.168.0.10") << swappedWord("0.168.0.20") << "255.255.255.0"
                                    << zeroHost << true << false;
}

void TestEthConfigChecks::range()
{
    QFETCH(quint32, begin);
    QFETCH(quint32, end);
    QFETCH(QString, mask);
    QFETCH(QString, warning);
    const EthConfigChecks::RangeVerdict verdict = EthConfigChecks::checkRange(begin, end, Ipv4::fromText(mask));
    QCOMPARE(verdict.accepted, warning.isEmpty());
    QVERIFY2(verdict.warning.contains(warning), qPrintable(verdict.warning));
    QTEST(verdict.resetBegin, "resetBegin");
    QTEST(verdict.resetEnd, "resetEnd");
}

void TestEthConfigChecks::persistentFitsAdapter_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("adapterMask");
    QTest::addColumn<bool>("fits");
    QTest::newRow("same subnet") << "192.168.50.23" << "255.255.255.0" << "255.255.255.0" << true;
    QTest::newRow("other subnet") << "10.0.0.11" << "255.255.255.0" << "255.255.255.0" << false;
    QTest::newRow("no address") << "0.0.0.0" << "0.0.0.0" << "255.255.255.0" << true;
    QTest::newRow("adapter without mask") << "10.0.0.11" << "255.0.0.0" << "0.0.0.0" << true;
    // The camera's own mask decides its side of the comparison.
    QTest::newRow("wider mask of the camera") << "192.168.50.23" << "255.255.0.0" << "255.255.255.0" << false;
}

void TestEthConfigChecks::persistentFitsAdapter()
{
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QFETCH(QString, adapterMask);
    QTEST(EthConfigChecks::persistentFitsAdapter(Ipv4::fromText(address), Ipv4::fromText(mask),
                                                 Ipv4::fromText(QStringLiteral("192.168.50.1")),
                                                 Ipv4::fromText(adapterMask)),
          "fits");
}

void TestEthConfigChecks::ipv4Helpers()
{
    const Ipv4::HostRange range = Ipv4::hostRange(Ipv4::fromText(QStringLiteral("192.168.1.7")),
                                                  Ipv4::fromText(QStringLiteral("255.255.255.0")));
    QCOMPARE(Ipv4::text(range.first), QStringLiteral("192.168.1.1"));
    QCOMPARE(Ipv4::text(range.last), QStringLiteral("192.168.1.254"));
    // A host mask gives a range that ends before it begins; it is used as computed.
    const Ipv4::HostRange single = Ipv4::hostRange(Ipv4::fromText(QStringLiteral("192.168.1.7")), 0xFFFFFFFFu);
    QCOMPARE(Ipv4::text(single.first), QStringLiteral("192.168.1.8"));
    QCOMPARE(Ipv4::text(single.last), QStringLiteral("192.168.1.6"));

    std::uint8_t bytes[4];
    Ipv4::toNetworkBytes(Ipv4::fromText(QStringLiteral("10.1.2.3")), bytes);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(bytes), 4), QByteArray("\x0a\x01\x02\x03", 4));
    QCOMPARE(Ipv4::text(Ipv4::fromNetworkBytes(bytes)), QStringLiteral("10.1.2.3"));
    QCOMPARE(Ipv4::fromText(QStringLiteral("300.1.1.1")), 0u);
    QVERIFY(Ipv4::isContiguousMask(Ipv4::fromText(QStringLiteral("255.255.252.0"))));
    QVERIFY(!Ipv4::isContiguousMask(Ipv4::fromText(QStringLiteral("255.0.255.0"))));
    QVERIFY(!Ipv4::isContiguousMask(0));
    QVERIFY(Ipv4::isHostOf(Ipv4::fromText(QStringLiteral("192.168.1.254")), range.first, 0xFFFFFF00u));
    QVERIFY(!Ipv4::isHostOf(Ipv4::fromText(QStringLiteral("192.168.1.255")), range.first, 0xFFFFFF00u));
}

QTEST_APPLESS_MAIN(TestEthConfigChecks)
#include "tst_ethconfigchecks.moc"
