#include "network/macaddress.h"

#include <QtTest>

class TestMacAddress : public QObject
{
    Q_OBJECT

private slots:
    void parse_data();
    void parse();
};

void TestMacAddress::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("parsed"); // empty: does not parse
    const QString expected = QStringLiteral("00:a0:c9:12:34:56");
    QTest::newRow("hyphens") << "00-A0-C9-12-34-56" << expected;
    QTest::newRow("colons, lower case") << "00:a0:c9:12:34:56" << expected;
    QTest::newRow("no separators") << "00A0C9123456" << expected;
    QTest::newRow("mixed separators") << "00 A0-C9:12 3456" << expected;
    QTest::newRow("tab separator") << "00\tA0\tC9\t12\t34\t56" << expected;
    QTest::newRow("separator after the last pair") << "00-A0-C9-12-34-56-" << QString();
    QTest::newRow("single digit") << "0-A0-C9-12-34-56" << QString();
    QTest::newRow("two separators") << "00--A0-C9-12-34-56" << QString();
    QTest::newRow("five pairs") << "00-A0-C9-12-34" << QString();
    QTest::newRow("seven pairs") << "00-A0-C9-12-34-56-78" << QString();
    QTest::newRow("not hexadecimal") << "00-A0-C9-12-34-5G" << QString();
    QTest::newRow("leading space") << " 00-A0-C9-12-34-56" << QString();
    QTest::newRow("empty") << "" << QString();
}

void TestMacAddress::parse()
{
    QFETCH(QString, text);
    QFETCH(QString, parsed);
    const std::optional<MacAddress> mac = MacAddress::fromText(text);
    QCOMPARE(mac.has_value(), !parsed.isEmpty());
    if (mac) {
        QCOMPARE(mac->text(), parsed);
        QVERIFY(!mac->isZero());
    } else {
        // Text that does not match gives six zero bytes.
        QVERIFY(MacAddress::parse(text).isZero());
    }
}

QTEST_APPLESS_MAIN(TestMacAddress)
#include "tst_macaddress.moc"
