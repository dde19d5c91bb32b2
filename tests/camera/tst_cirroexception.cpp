#include "camera/cirroexception.h"

#include <QtTest>

#include <limits>

class TestCirroException : public QObject
{
    Q_OBJECT

private slots:
    void message_data();
    void message();
    void isCatchableAsStdException();
};

void TestCirroException::message_data()
{
    QTest::addColumn<qint32>("code");
    QTest::addColumn<QString>("expected");

    QTest::newRow("minus one") << qint32(-1) << "Custom exception: ret=-1";
    QTest::newRow("zero") << qint32(0) << "Custom exception: ret=0";
    QTest::newRow("driver code") << qint32(125) << "Custom exception: ret=125";
    QTest::newRow("most negative") << std::numeric_limits<qint32>::min()
                                   << "Custom exception: ret=-2147483648";
    QTest::newRow("largest") << std::numeric_limits<qint32>::max()
                             << "Custom exception: ret=2147483647";
}

void TestCirroException::message()
{
    QFETCH(qint32, code);
    QFETCH(QString, expected);

    const CirroException e(code);
    QCOMPARE(QString::fromLatin1(e.what()), expected);
    QCOMPARE(e.code(), code);
}

void TestCirroException::isCatchableAsStdException()
{
    try {
        throw CirroException(107);
    } catch (const std::exception& e) {
        QCOMPARE(QString::fromLatin1(e.what()), QStringLiteral("Custom exception: ret=107"));
        return;
    }
    QFAIL("not caught as std::exception");
}

QTEST_APPLESS_MAIN(TestCirroException)
#include "tst_cirroexception.moc"
