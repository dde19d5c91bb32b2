#include "dialogs/usereeprom.h"

#include <QtTest>

class TestUserEeprom : public QObject
{
    Q_OBJECT

private slots:
    void hexInput_data();
    void hexInput();
    void textInput_data();
    void textInput();
    void textOfStoredBytes_data();
    void textOfStoredBytes();
    void sizeLimit_data();
    void sizeLimit();
};

void TestUserEeprom::hexInput_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << "" << true << QByteArray();
    QTest::newRow("spaced") << "4c 69 6E 65" << true << QByteArray("Line");
    QTest::newRow("packed, line breaks") << "4C69\n6E65\n" << true << QByteArray("Line");
    QTest::newRow("zero bytes kept") << "00 41 00" << true << QByteArray("\0A\0", 3);
    QTest::newRow("odd digit count") << "4C 6" << false << QByteArray();
    QTest::newRow("not hexadecimal") << "4G" << false << QByteArray();
    QTest::newRow("prefix") << "0x41" << false << QByteArray();
}

void TestUserEeprom::hexInput()
{
    QFETCH(QString, input);
    QFETCH(bool, valid);
    QFETCH(QByteArray, bytes);
    QByteArray parsed("untouched");
    const Result result = UserEeprom::fromHex(input, &parsed);
    QCOMPARE(result.isSuccess(), valid);
    QCOMPARE(parsed, valid ? bytes : QByteArray("untouched"));
    if (valid)
        QCOMPARE(UserEeprom::fromHex(UserEeprom::toHex(bytes), &parsed).isSuccess(), true);
    else
        QVERIFY(!result.text().isEmpty());
}

void TestUserEeprom::textInput_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("valid");
    QTest::newRow("ascii") << "Line 4 left" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("umlaut") << QString::fromUtf8("Linie \u00e4") << false;
    QTest::newRow("control character") << "a\tb" << false;
    QTest::newRow("delete") << QString(QChar(0x7F)) << false;
}

void TestUserEeprom::textInput()
{
    QFETCH(QString, input);
    QFETCH(bool, valid);
    QByteArray bytes;
    QCOMPARE(UserEeprom::fromText(input, &bytes).isSuccess(), valid);
    if (valid)
        QCOMPARE(UserEeprom::toText(bytes), input);
}

void TestUserEeprom::textOfStoredBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("up to the first zero") << QByteArray("ab\0cd", 5) << "ab";
    QTest::newRow("binary as dots") << QByteArray("a\x01\xff" "b") << "a..b";
    QTest::newRow("all zero") << QByteArray(64, '\0') << "";
}

void TestUserEeprom::textOfStoredBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(UserEeprom::toText(bytes), text);
}

void TestUserEeprom::sizeLimit_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("fits");
    QTest::newRow("empty") << 0 << true;
    QTest::newRow("full") << 64 << true;
    QTest::newRow("one byte more") << 65 << false;
}

void TestUserEeprom::sizeLimit()
{
    QFETCH(int, size);
    QFETCH(bool, fits);
    const Result result = UserEeprom::checkSize(QByteArray(size, 'x'), 64);
    QCOMPARE(result.isSuccess(), fits);
    if (!fits)
        QVERIFY2(result.text().contains("64") && result.text().contains("65"), qPrintable(result.text()));
}

QTEST_GUILESS_MAIN(TestUserEeprom)
#include "tst_usereeprom.moc"
