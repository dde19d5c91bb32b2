#include "common/inidocument.h"
#include "common/servicesettingsfile.h"
#include "driversettings/driverservicesettings.h"

#include "withoutwriterights.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

// The driver services' settings files: what the drivers' own reader (Qt's
// INI format) sees must be what this reader and writer see, and nothing the
// file held besides the changed value may be lost.
class TestServiceSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void refusesTextThatDoesNotParse_data();
    void refusesTextThatDoesNotParse();
    void changesKeepEveryOtherLine();
    void readsAndWritesWhatTheDriversReadAndWrite();
    void numbersAreReadWithTheLineOfABadValue_data();
    void numbersAreReadWithTheLineOfABadValue();
    void refusedFilesAreNeverReplaced_data();
    void refusedFilesAreNeverReplaced();
    void writabilityFollowsTheProcesssRights_data();
    void writabilityFollowsTheProcesssRights();

private:
    QString usbFile() const { return DriverServiceSettings::filePath(QStringLiteral("cirro_usb")); }
    static void writeFile(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }
    static QByteArray readFile(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

void TestServiceSettingsFile::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_root->path().toUtf8());
}

void TestServiceSettingsFile::cleanup()
{
    qunsetenv("CIRRO_CONFIG_ROOT");
    m_root.reset();
}

void TestServiceSettingsFile::refusesTextThatDoesNotParse_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line");
    QTest::newRow("word without value") << QByteArray("[Parameters]\nA=1\ngarbage\n") << 3;
    QTest::newRow("open group") << QByteArray("; settings\n[Parameters\nA=1\n") << 2;
    QTest::newRow("empty group") << QByteArray("[]\n") << 1;
    QTest::newRow("key missing") << QByteArray("[Parameters]\n=5\n") << 2;
    QTest::newRow("binary") << QByteArray("[Parameters]\nA=\x01\x00\x02\n", 19) << 2;
    QTest::newRow("control character") << QByteArray("[Parameters]\nA=\x1b[0m\n") << 2;
    QTest::newRow("not UTF-8") << QByteArray("[Parameters]\n\nA=\xff\xfe\n") << 3;
}

void TestServiceSettingsFile::refusesTextThatDoesNotParse()
{
    QFETCH(QByteArray, text);
    QFETCH(int, line);
    IniDocument::ParseError error;
    QVERIFY(!IniDocument::parse(text, &error));
    QCOMPARE(error.line, line);
    QVERIFY(!error.reason.isEmpty());

    writeFile(usbFile(), text);
    const ServiceSettingsFile file(QStringLiteral("cirro_usb"));
    QCOMPARE(file.problem().code(), int(HostError::UnreadableFile));
    QVERIFY2(file.problem().text().contains(usbFile() + QStringLiteral(" can't be used: line %1").arg(line)),
             qPrintable(file.problem().text()));
    QVERIFY(!file.isWritable());
}

void TestServiceSettingsFile::changesKeepEveryOtherLine()
{
    const QByteArray original = "; written by the installer\r\n"
                                "[Parameters]\n"
                                "  DebugEnableMask = 0x10 ; all\n"
                                "# keep me\n"
                                "\n"
                                "[Bindings]\n"
                                "eth0=false\n";
    writeFile(usbFile(), original);
    ServiceSettingsFile file(QStringLiteral("cirro_usb"));
    QVERIFY(file.write(QStringLiteral("Bindings/eth0"), QStringLiteral("true")).isSuccess());
    QVERIFY(file.write(QStringLiteral("Parameters/LogAPI"), QStringLiteral("1")).isSuccess());
    QVERIFY(file.write(QStringLiteral("Trace/Level"), QStringLiteral("2")).isSuccess());
    QCOMPARE(readFile(usbFile()), QByteArray("; written by the installer\r\n"
                                             "[Parameters]\n"
                                             "  DebugEnableMask = 0x10 ; all\n"
                                             "LogAPI=1\n"
                                             "# keep me\n"
                                             "\n"
                                             "[Bindings]\n"
                                             "eth0=true\n"
                                             "\n"
                                             "[Trace]\n"
                                             "Level=2\n"));
}

void TestServiceSettingsFile::readsAndWritesWhatTheDriversReadAndWrite()
{
    {
        QSettings drivers(usbFile(), QSettings::IniFormat);
        drivers.setValue(QStringLiteral("Parameters/DDCopyMode "), 1);
        drivers.setValue(QStringLiteral("Parameters/DebugEnableMask"), QVariant::fromValue(quint64(1) << 63));
        drivers.setValue(QStringLiteral("General key"), 7);
    }
    ServiceSettingsFile file(QStringLiteral("cirro_usb"));
    QCOMPARE(file.entry(QStringLiteral("Parameters/DDCopyMode "))->value, QStringLiteral("1"));
    QVERIFY(!file.entry(QStringLiteral("Parameters/DDCopyMode")));
    quint64 mask = 0;
    QVERIFY(file.readNumber(QStringLiteral("Parameters/DebugEnableMask"), 0, mask).isSuccess());
    QCOMPARE(mask, quint64(1) << 63);
    QCOMPARE(file.entry(QStringLiteral("General key"))->value, QStringLiteral("7"));

    QVERIFY(file.write(QStringLiteral("Parameters/LogBoardIO "), QStringLiteral("1")).isSuccess());
    QVERIFY(file.write(QStringLiteral("Parameters/DDCopyMode "), QStringLiteral("0")).isSuccess());
    QVERIFY(file.write(QStringLiteral("General key"), QStringLiteral("8")).isSuccess());
    QSettings drivers(usbFile(), QSettings::IniFormat);
    QCOMPARE(drivers.status(), QSettings::NoError);
    QCOMPARE(drivers.value(QStringLiteral("Parameters/LogBoardIO ")).toInt(), 1);
    QCOMPARE(drivers.value(QStringLiteral("Parameters/DDCopyMode ")).toInt(), 0);
    QCOMPARE(drivers.value(QStringLiteral("General key")).toInt(), 8);
    QCOMPARE(drivers.allKeys().size(), 4);
}

void TestServiceSettingsFile::numbersAreReadWithTheLineOfABadValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<quint64>("value");
    QTest::newRow("missing") << QByteArray("[Parameters]\n") << true << quint64(42);
    QTest::newRow("decimal") << QByteArray("[Parameters]\nBulkTransferSize=262144\n") << true << quint64(262144);
    QTest::newRow("hexadecimal") << QByteArray("[Parameters]\nBulkTransferSize=0x40000\n") << true << quint64(0x40000);
    QTest::newRow("quoted") << QByteArray("[Parameters]\nBulkTransferSize=\"7\"\n") << true << quint64(7);
    QTest::newRow("word") << QByteArray("[Parameters]\nBulkTransferSize=large\n") << false << quint64(42);
    QTest::newRow("negative") << QByteArray("[Parameters]\nBulkTransferSize=-1\n") << false << quint64(42);
}

void TestServiceSettingsFile::numbersAreReadWithTheLineOfABadValue()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, readable);
    QFETCH(quint64, value);
    writeFile(usbFile(), text);
    quint64 read = 0;
    const Result result = ServiceSettingsFile(QStringLiteral("cirro_usb"))
                              .readNumber(QStringLiteral("Parameters/BulkTransferSize"), 42, read);
    QCOMPARE(result.isSuccess(), readable);
    QCOMPARE(read, value);
    if (!readable)
        QVERIFY(result.text().contains(QStringLiteral("in line 2")));
}

void TestServiceSettingsFile::refusedFilesAreNeverReplaced_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("does not parse") << "garbage";
    QTest::newRow("too large") << "large";
    QTest::newRow("named pipe") << "fifo";
    QTest::newRow("directory") << "directory";
}

void TestServiceSettingsFile::refusedFilesAreNeverReplaced()
{
    QFETCH(QString, kind);
    if (kind == QLatin1String("garbage"))
        writeFile(usbFile(), "[Parameters]\nDebugEnableMask=1\n\x7f\x45LF\n");
    else if (kind == QLatin1String("large"))
        writeFile(usbFile(), "[Parameters]\n" + QByteArray(ServiceSettingsFile::maximumSize, ';'));
    else if (kind == QLatin1String("fifo"))
        QCOMPARE(::mkfifo(QFile::encodeName(usbFile()).constData(), 0600), 0); // opening it would block
    else
        QVERIFY(QDir().mkpath(usbFile()));
    const QByteArray before = QFileInfo(usbFile()).isFile() ? readFile(usbFile()) : QByteArray();

    ServiceSettingsFile file(QStringLiteral("cirro_usb"));
    QCOMPARE(file.problem().code(), int(HostError::UnreadableFile));
    QVERIFY(file.problem().text().contains(usbFile()));
    QVERIFY(!file.entry(QStringLiteral("Parameters/DebugEnableMask")));
    const Result written = file.write(QStringLiteral("Parameters/DebugEnableMask"), QStringLiteral("2"));
    QCOMPARE(written.code(), int(HostError::UnreadableFile));
    if (QFileInfo(usbFile()).isFile())
        QCOMPARE(readFile(usbFile()), before);
}

void TestServiceSettingsFile::writabilityFollowsTheProcesssRights_data()
{
    QTest::addColumn<bool>("fileExists");
    QTest::addColumn<bool>("readOnlyDirectory");
    QTest::newRow("read-only file") << true << false;
    QTest::newRow("read-only directory, file writable") << true << true;
    QTest::newRow("read-only directory, no file yet") << false << true;
}

void TestServiceSettingsFile::writabilityFollowsTheProcesssRights()
{
    QFETCH(bool, fileExists);
    QFETCH(bool, readOnlyDirectory);
    if (fileExists)
        writeFile(usbFile(), "[Parameters]\nLogAPI=1\n");
    QVERIFY(ServiceSettingsFile(QStringLiteral("cirro_usb")).isWritable());
    {
        WithoutWriteRights readOnly(m_root->path(), readOnlyDirectory);
        if (fileExists && readOnlyDirectory) // the file alone stays writable for its owner
            QFile::setPermissions(usbFile(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther);
        ServiceSettingsFile file(QStringLiteral("cirro_usb"));
        QVERIFY(file.problem().isSuccess());
        QVERIFY(!file.isWritable());
        QVERIFY(file.notWritableReason().contains(usbFile()));
        QCOMPARE(file.write(QStringLiteral("Parameters/LogAPI"), QStringLiteral("0")).code(), int(HostError::NotWritable));
    }
    QCOMPARE(readFile(usbFile()), fileExists ? QByteArray("[Parameters]\nLogAPI=1\n") : QByteArray());
}

QTEST_GUILESS_MAIN(TestServiceSettingsFile)
#include "tst_servicesettingsfile.moc"
