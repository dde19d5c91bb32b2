#include "dialogs/widgets/firmwareuploadprogress.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestFirmwareUploadProgress : public QObject
{
    Q_OBJECT

private slots:
    void waitsOneStepShortOfTheEnd();
    void labelNamesTheExpectedDuration();
    void barFollowsTheDriversProgress();
};

void TestFirmwareUploadProgress::waitsOneStepShortOfTheEnd()
{
    QWidget window;
    window.show();
    FirmwareUploadProgress progress(4, &window, {}, std::chrono::milliseconds(5));
    progress.show();
    QCOMPARE(progress.windowModality(), Qt::WindowModal);
    QVERIFY(progress.findChildren<QPushButton*>().isEmpty()); // nothing to cancel
    QVERIFY(!(progress.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(progress.maximum(), 4);
    QTRY_COMPARE(progress.value(), 3);
    // Many more steps later it still waits for the result.
    QTest::qWait(100);
    QCOMPARE(progress.value(), 3);
    QVERIFY(progress.isVisible());
}

void TestFirmwareUploadProgress::labelNamesTheExpectedDuration()
{
    FirmwareUploadProgress progress(35, nullptr);
    QCOMPARE(progress.findChild<QLabel*>()->text(),
             QStringLiteral("Uploading firmware...\n\nPlease don't disconnect the device until this operation is "
                            "completed.\nThis may take up to 35 seconds."));
    QCOMPARE(progress.value(), 0);
}

void TestFirmwareUploadProgress::barFollowsTheDriversProgress()
{
    std::optional<int> reported = 500;
    FirmwareUploadProgress progress(40, nullptr, [&reported] { return reported; }, std::chrono::milliseconds(5));
    QTRY_COMPARE(progress.value(), 20);
    QTRY_VERIFY(progress.findChild<QLabel*>()->text().contains(
        QRegularExpression(QStringLiteral("seconds\\.\n\nElapsed: [1-9][0-9]* second"))));
    reported = 100; // never backwards
    QTest::qWait(30);
    QCOMPARE(progress.value(), 20);
    reported = 1000; // done, but the result closes the dialog
    QTRY_COMPARE(progress.value(), 39);
    reported.reset(); // the driver stops reporting: time takes over
    QTest::qWait(30);
    QCOMPARE(progress.value(), 39);
}

QTEST_MAIN(TestFirmwareUploadProgress)
#include "tst_firmwareuploadprogress.moc"
