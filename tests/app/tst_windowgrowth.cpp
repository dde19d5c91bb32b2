#include "app/windowgrowth.h"

#include <QtTest>

class TestWindowGrowth : public QObject
{
    Q_OBJECT

private slots:
    void widened_data();
    void widened();
};

void TestWindowGrowth::widened_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QRect>("expected");

    const QRect screen(0, 0, 1600, 1000);
    QTest::newRow("room to the right") << QRect(100, 50, 800, 600) << 1150 << screen << QRect(100, 50, 1150, 600);
    QTest::newRow("moves left at the edge") << QRect(700, 50, 800, 600) << 1150 << screen << QRect(450, 50, 1150, 600);
    QTest::newRow("as wide as the screen allows") << QRect(300, 0, 800, 600) << 2000 << screen
                                                  << QRect(0, 0, 1600, 600);
    QTest::newRow("wide enough already") << QRect(10, 10, 1300, 600) << 1150 << screen << QRect(10, 10, 1300, 600);
    QTest::newRow("screen narrower than the window") << QRect(0, 0, 800, 600) << 1150 << QRect(0, 0, 640, 480)
                                                     << QRect(0, 0, 800, 600);
    QTest::newRow("second screen") << QRect(2500, 100, 800, 600) << 1150 << QRect(1600, 0, 1280, 1024)
                                   << QRect(1730, 100, 1150, 600);
    QTest::newRow("hanging off the left edge") << QRect(-200, 0, 800, 600) << 1000 << screen
                                               << QRect(0, 0, 1000, 600);
}

void TestWindowGrowth::widened()
{
    QFETCH(QRect, frame);
    QFETCH(int, wanted);
    QFETCH(QRect, available);
    QTEST(WindowGrowth::widened(frame, wanted, available), "expected");
}

QTEST_GUILESS_MAIN(TestWindowGrowth)
#include "tst_windowgrowth.moc"
