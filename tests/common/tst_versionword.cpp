#include "common/versionword.h"

#include <cirro_api.h>

#include <QtTest>

class TestVersionWord : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
};

void TestVersionWord::texts_data()
{
    QTest::addColumn<quint32>("word");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("padded");
    QTest::newRow("driver") << PV_VERSION(4, 97, 1203) << "4.97.1203" << "4.97.1203";
    QTest::newRow("small parts") << PV_VERSION(3, 2, 1) << "3.2.1" << "3.02.0001";
    QTest::newRow("largest parts") << 0xFFFFFFFFu << "255.255.65535" << "255.255.65535";
    QTest::newRow("zero") << 0u << "0.0.0" << "0.00.0000";
}

void TestVersionWord::texts()
{
    QFETCH(quint32, word);
    const VersionWord version(word);
    QTEST(version.text(), "text");
    QTEST(version.paddedText(), "padded");
    QCOMPARE(PV_VERSION(version.major(), version.minor(), version.build()), word);
}

QTEST_APPLESS_MAIN(TestVersionWord)
#include "tst_versionword.moc"
