// Answer lines of the cameras' serial interface to the identification query.
#include "comport/comportanswer.h"

#include <QtTest>

class TestComPortAnswer : public QObject
{
    Q_OBJECT

private slots:
    void parse_data();
    void parse();
};

void TestComPortAnswer::parse_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("cameras");
    QTest::addColumn<QString>("text");
    const int id = int(ComPortAnswer::Kind::Identification);
    const int error = int(ComPortAnswer::Kind::Error);
    const int garbage = int(ComPortAnswer::Kind::Garbage);
    QTest::newRow("one camera") << QByteArray("ID CR-U3-50M,4102000001,1") << id << 1
                                << "CR-U3-50M, serial number 4102000001, camera ID 1";
    QTest::newRow("broadcast, two") << QByteArray("ID A,1,2;B,3,4") << id << 2
                                    << "A, serial number 1, camera ID 2\nB, serial number 3, camera ID 4";
    QTest::newRow("broadcast, none") << QByteArray("ID") << id << 0 << "No camera answered.";
    QTest::newRow("error") << QByteArray("ERR camera not reachable") << error << 0 << "camera not reachable";
    QTest::newRow("camera ID not a number") << QByteArray("ID A,1,x") << garbage << 0 << "ID A,1,x";
    QTest::newRow("two fields") << QByteArray("ID A,1") << garbage << 0 << "ID A,1";
    QTest::newRow("no model") << QByteArray("ID ,1,2") << garbage << 0 << "ID ,1,2";
    QTest::newRow("one bad entry of two") << QByteArray("ID A,1,2;B") << garbage << 0 << "ID A,1,2;B";
    QTest::newRow("other text") << QByteArray("IDENT 5") << garbage << 0 << "IDENT 5";
    QTest::newRow("noise") << QByteArray("\x01\x7f~") << garbage << 0 << QString::fromLatin1("\x01\x7f~");
}

void TestComPortAnswer::parse()
{
    QFETCH(QByteArray, line);
    QFETCH(int, kind);
    QFETCH(int, cameras);
    QFETCH(QString, text);
    const ComPortAnswer answer = ComPortAnswer::parse(line);
    QCOMPARE(int(answer.kind), kind);
    QCOMPARE(answer.cameras.size(), cameras);
    QCOMPARE(answer.text(), text);
}

QTEST_GUILESS_MAIN(TestComPortAnswer)
#include "tst_comportanswer.moc"
