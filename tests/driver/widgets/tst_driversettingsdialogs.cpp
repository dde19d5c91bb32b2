#include "driver/widgets/checkboxex.h"
#include "driver/widgets/flagsctrl.h"
#include "driver/widgets/qdebugoutctrl.h"
#include "driver/widgets/driveroutputview.h"
#include "driversettings/driverservicesettings.h"

#include "messageboxanswerer.h"
#include "simdriverfixture.h"
#include "withoutwriterights.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// The debug output mask and the driver flags, on settings files of the test's
// own that are read back as the drivers read them (Qt's INI reader).
class TestDriverSettingsDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void maskFollowsTheBoxesAndLandsInTheFile();
    void switchingDriverReadsItsMask();
    void maskWriteIsRefusedWithoutRights_data();
    void maskWriteIsRefusedWithoutRights();
    void typedMaskSetsTheBoxes();
    void writtenMaskMakesTheDriverTrace();
    void flagsAreInTwoColumnsInTheirOrder();
    void flagClicksStoreOneOrZero();
    void flagsAreDisabledWithoutRights();

private:
    static QString file(const char* service) { return DriverServiceSettings::filePath(QLatin1String(service)); }
    static QVariant stored(const char* service, const char* key)
    {
        return QSettings(file(service), QSettings::IniFormat).value(QLatin1String(key));
    }
    static void store(const char* service, const char* key, const QVariant& value)
    {
        QSettings(file(service), QSettings::IniFormat).setValue(QLatin1String(key), value);
    }
    static QByteArray readFile(const QString& path)
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    template <typename T>
    static T* child(QWidget& parent, const QString& name)
    {
        auto* found = parent.findChild<T*>(name);
        if (!found)
            qFatal("no child %s", qPrintable(name));
        return found;
    }
    static QString checkedBits(QDebugOutCtrl& dialog)
    {
        QStringList bits;
        for (int bit = 0; bit < 64; ++bit) {
            if (child<QCheckBox>(dialog, QStringLiteral("bit%1").arg(bit))->isChecked())
                bits << QString::number(bit);
        }
        return bits.join(' ');
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

void TestDriverSettingsDialogs::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_root->path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", m_root->path().toUtf8());
    QVERIFY(SimDriverFixture::reset());
}

void TestDriverSettingsDialogs::cleanup()
{
    qunsetenv("CIRRO_CONFIG_ROOT");
    m_root.reset();
}

void TestDriverSettingsDialogs::maskFollowsTheBoxesAndLandsInTheFile()
{
    QDebugOutCtrl dialog(nullptr);
    auto* mask = child<QLineEdit>(dialog, "mask");
    QCOMPARE(mask->text(), QStringLiteral("0x0000000000000000"));
    child<QCheckBox>(dialog, "bit63")->click();
    QCOMPARE(mask->text(), QStringLiteral("0x8000000000000000"));
    child<QCheckBox>(dialog, "bit4")->click();
    QCOMPARE(mask->text(), QStringLiteral("0x8000000000000010"));
    QVERIFY(!QFile::exists(file("cirro_usb"))); // nothing written by a box
    child<QPushButton>(dialog, "write")->click();
    QCOMPARE(stored("cirro_usb", "Parameters/DebugEnableMask").toULongLong(), 0x8000000000000010ull);
    QCOMPARE(child<QCheckBox>(dialog, "bit4")->text(), QStringLiteral("Device start/stop"));
    auto* grid = qobject_cast<QGridLayout*>(child<QCheckBox>(dialog, "bit17")->parentWidget()->layout());
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(child<QCheckBox>(dialog, "bit17")), &row, &column, &rows, &columns);
    QCOMPARE(QPoint(column, row), QPoint(1, 1));
}

void TestDriverSettingsDialogs::switchingDriverReadsItsMask()
{
    store("cirro_usb", "Parameters/DebugEnableMask", 0x3);
    store("cirro_eth", "Parameters/DebugEnableMask", QVariant::fromValue(quint64(1) << 44 | 1u << 31));
    QDebugOutCtrl dialog(nullptr);
    QCOMPARE(checkedBits(dialog), QStringLiteral("0 1"));
    child<QRadioButton>(dialog, "eth")->click();
    QCOMPARE(checkedBits(dialog), QStringLiteral("31 44"));
    QCOMPARE(child<QLineEdit>(dialog, "mask")->text(), QStringLiteral("0x0000100080000000"));
    // A changed file is read again by "Read".
    store("cirro_eth", "Parameters/DebugEnableMask", 0);
    child<QPushButton>(dialog, "read")->click();
    QCOMPARE(checkedBits(dialog), QString());
}

void TestDriverSettingsDialogs::maskWriteIsRefusedWithoutRights_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("rights");
    QTest::addColumn<QString>("message");
    QTest::newRow("write-protected")
        << QByteArray("[Parameters]\nDebugEnableMask=1\n") << false
        << "Permission error: Can't write value. Destination is write-protected. If you have insufficient "
           "permission, please run under elevated mode!";
    QTest::newRow("file does not parse") << QByteArray("[Parameters]\nDebugEnableMask=1\nrubbish\n") << true
                                         << "Error: The settings file %1 can't be used: line 3: ";
}

void TestDriverSettingsDialogs::maskWriteIsRefusedWithoutRights()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, rights);
    QFETCH(QString, message);
    {
        QFile usb(file("cirro_usb"));
        QVERIFY(usb.open(QIODevice::WriteOnly));
        usb.write(content);
    }
    std::unique_ptr<WithoutWriteRights> readOnly;
    if (!rights)
        readOnly = std::make_unique<WithoutWriteRights>(m_root->path(), true);
    QDebugOutCtrl dialog(nullptr);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    child<QCheckBox>(dialog, "bit7")->click();
    child<QPushButton>(dialog, "write")->click();
    QCOMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().startsWith(message.arg(file("cirro_usb"))), qPrintable(answerer.seen.first()));
    QVERIFY(child<QCheckBox>(dialog, "bit7")->isChecked());
    QCOMPARE(readFile(file("cirro_usb")), content);
}

void TestDriverSettingsDialogs::typedMaskSetsTheBoxes()
{
    QDebugOutCtrl dialog(nullptr);
    auto* mask = child<QLineEdit>(dialog, "mask");
    mask->setText("0x8001");
    QTest::keyClick(mask, Qt::Key_Return);
    QCOMPARE(checkedBits(dialog), QStringLiteral("0 15"));
    QCOMPARE(mask->text(), QStringLiteral("0x0000000000008001"));
}

void TestDriverSettingsDialogs::writtenMaskMakesTheDriverTrace()
{
    QDebugOutCtrl dialog(nullptr);
    QVERIFY(child<QLabel>(dialog, "destination")->text().contains("cirro_usb.trace"));
    child<QCheckBox>(dialog, "bit4")->click();
    child<QPushButton>(dialog, "write")->click();
    quint32 handle = 0 | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), PV_OK);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);

    QString shown;
    QTimer reader;
    connect(&reader, &QTimer::timeout, [&] {
        auto* view = dialog.findChild<DriverOutputView*>();
        if (!view || !view->isVisible())
            return;
        shown = child<QPlainTextEdit>(*view, "lines")->toPlainText();
        if (!shown.isEmpty())
            view->reject();
    });
    reader.start(10);
    child<QPushButton>(dialog, "showRecentOutput")->click();
    QVERIFY2(shown.contains("[Device start/stop]"), qPrintable(shown));
    QVERIFY(!shown.contains("[All IOCTL calls]"));
}

void TestDriverSettingsDialogs::flagsAreInTwoColumnsInTheirOrder()
{
    FlagsCtrl dialog(nullptr);
    const QList<CheckBoxEx*> boxes = dialog.findChildren<CheckBoxEx*>();
    QCOMPARE(boxes.size(), 25);
    auto* grid = qobject_cast<QGridLayout*>(boxes.first()->parentWidget()->layout());
    const auto at = [grid](int row, int column) {
        return grid->itemAtPosition(row, column)->widget()->property("text").toString();
    };
    QCOMPARE(at(0, 0), QStringLiteral("OpenUncalibratedCameras"));
    QCOMPARE(at(0, 1), QStringLiteral("ExposureControl"));
    QCOMPARE(at(3, 0), QStringLiteral("AutomaticFirmwareUpdate_Bypass (>=4.92)"));
    QCOMPARE(at(8, 1), QStringLiteral("LogBoardIO "));
    QCOMPARE(at(12, 0), QStringLiteral("IgnoreFirmwareVersion"));
    QVERIFY(!grid->itemAtPosition(12, 1));
}

void TestDriverSettingsDialogs::flagClicksStoreOneOrZero()
{
    store("cirro_usb", "Parameters/LogBoardIO ", 2);
    store("cirro_eth", "Parameters/AllowAutoStarterFwUpload", 0);
    FlagsCtrl dialog(nullptr);
    auto* logBoard = child<CheckBoxEx>(dialog, "flag_LogBoardIO");
    QVERIFY(logBoard->isChecked());
    logBoard->click();
    QCOMPARE(stored("cirro_usb", "Parameters/LogBoardIO ").toInt(), 0);
    logBoard->click();
    QCOMPARE(stored("cirro_usb", "Parameters/LogBoardIO ").toInt(), 1);
    QVERIFY(!stored("cirro_usb", "Parameters/LogBoardIO").isValid());

    auto* starter = child<CheckBoxEx>(dialog, "flag_AllowAutoStarterFwUpload");
    QVERIFY(!starter->isChecked());
    starter->click();
    QCOMPARE(stored("cirro_eth", "Parameters/AllowAutoStarterFwUpload").toInt(), 1);
    QVERIFY(!stored("cirro_usb", "Parameters/AllowAutoStarterFwUpload").isValid());
}

void TestDriverSettingsDialogs::flagsAreDisabledWithoutRights()
{
    store("cirro_usb", "Parameters/LogAPI", 1);
    store("cirro_eth", "Parameters/Disable_UDP_Chcks_To", 1);
    WithoutWriteRights readOnly(m_root->path(), true);
    FlagsCtrl dialog(nullptr);
    for (CheckBoxEx* box : dialog.findChildren<CheckBoxEx*>())
        QVERIFY2(!box->isEnabled(), qPrintable(box->text()));
    QVERIFY(child<CheckBoxEx>(dialog, "flag_LogAPI")->isChecked());
    QVERIFY(child<CheckBoxEx>(dialog, "flag_Disable_UDP_Chcks_To")->isChecked());
    QVERIFY(!child<CheckBoxEx>(dialog, "flag_LogError")->isChecked());
}

QTEST_MAIN(TestDriverSettingsDialogs)
#include "tst_driversettingsdialogs.moc"
