#include "supportfile/supportfilecodec.h"
#include "supportfile/supportfilenames.h"
#include "supportfile/supportfilereader.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray encoded(const QString& ini)
{
    return SupportFileCodec::encode(ini.toStdWString());
}

// The file's lines with one of them replaced.
QByteArray withLine(const QByteArray& file, int line, const QByteArray& replacement)
{
    QList<QByteArray> lines = file.split('\n');
    lines[line - 1] = replacement + '\r';
    return lines.join('\n');
}

const QString twoSections = QStringLiteral("[Camera Manager]\nVersion=4.97.0.0\n\n[USB]\nNumber of cameras=2\n\n");

} // namespace

class TestSupportFileReader : public QObject
{
    Q_OBJECT

private slots:
    void scramblingWrapsAround();
    void keyHasNoMissingUnits();
    void lineFeedIsOneUnitAndLinesEndInCrLf();
    void encodingRoundTrips_data();
    void encodingRoundTrips();
    void decodingStopsAtTheFirstBadLine_data();
    void decodingStopsAtTheFirstBadLine();
    void damagedFilesAreNamedWithTheirLine_data();
    void damagedFilesAreNamedWithTheirLine();
    void aMissingFileIsNamed();
    void countSectionsFollowTheNameTable_data();
    void countSectionsFollowTheNameTable();
};

void TestSupportFileReader::scramblingWrapsAround()
{
    QCOMPARE(SupportFileCodec::scramble(65530, 0), quint16(26));
    QCOMPARE(SupportFileCodec::unscramble(26, 0), quint16(65530));
    QCOMPARE(SupportFileCodec::unscramble(SupportFileCodec::scramble(0x1234, 0xFFFF), 0xFFFF), quint16(0x1234));
}

void TestSupportFileReader::keyHasNoMissingUnits()
{
    const SupportFileCodec::Key key = SupportFileCodec::key();
    QCOMPARE(key, SupportFileCodec::key());
    // Shifted seeds keep some bits in every unit, so no stretch of the text stays plain.
    QVERIFY(std::all_of(key.begin(), key.end(), [](quint16 unit) { return unit != 0; }));
}

void TestSupportFileReader::lineFeedIsOneUnitAndLinesEndInCrLf()
{
    const QByteArray file = encoded(QStringLiteral("a\nb"));
    const QList<QByteArray> lines = file.split('\n');
    QCOMPARE(lines.size(), 4); // three units and the empty rest after the last line break
    QVERIFY(std::all_of(lines.begin(), lines.end() - 1, [](const QByteArray& line) { return line.endsWith('\r'); }));
    const SupportFileCodec::Key key = SupportFileCodec::key();
    QCOMPARE(lines[1].chopped(1).toUInt(), uint(SupportFileCodec::scramble(10, key[1])));
}

void TestSupportFileReader::encodingRoundTrips_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("ini") << twoSections;
    QTest::newRow("beyond one key length") << QString(300, QLatin1Char('x'));
    QTest::newRow("umlauts and CJK") << QStringLiteral("[Gerät]\nName=\u00e4\u4e2d\u6587\n");
    QTest::newRow("surrogate pair") << QStringLiteral("k=\U0001F600\n");
}

void TestSupportFileReader::encodingRoundTrips()
{
    QFETCH(QString, text);
    const SupportFileCodec::Decoded decoded = SupportFileCodec::decode(encoded(text));
    QCOMPARE(decoded.badLine, 0);
    QCOMPARE(QString::fromUtf16(decoded.units.data(), int(decoded.units.size())), text);
}

void TestSupportFileReader::decodingStopsAtTheFirstBadLine_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("badLine");
    QTest::addColumn<int>("units");
    QTest::newRow("line feeds only") << QByteArray("40\n41\n42") << 0 << 3;
    QTest::newRow("no final line break") << QByteArray("40\r\n41") << 0 << 2;
    QTest::newRow("word") << QByteArray("40\r\nabc\r\n41\r\n") << 2 << 1;
    QTest::newRow("above 65535") << QByteArray("65535\r\n65536\r\n") << 2 << 1;
    QTest::newRow("far above") << QByteArray("99999999999999999999\r\n") << 1 << 0;
    QTest::newRow("empty line") << QByteArray("40\r\n\r\n41\r\n") << 2 << 1;
    QTest::newRow("sign") << QByteArray("-1\r\n") << 1 << 0;
    QTest::newRow("blank after number") << QByteArray("40 \r\n") << 1 << 0;
    QTest::newRow("lone carriage return") << QByteArray("40\r41\r\n") << 1 << 0;
}

void TestSupportFileReader::decodingStopsAtTheFirstBadLine()
{
    QFETCH(QByteArray, file);
    QFETCH(int, badLine);
    QFETCH(int, units);
    const SupportFileCodec::Decoded decoded = SupportFileCodec::decode(file);
    QCOMPARE(decoded.badLine, badLine);
    QCOMPARE(int(decoded.units.size()), units);
}

void TestSupportFileReader::damagedFilesAreNamedWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("errorPart");
    QTest::addColumn<bool>("partial");
    QTest::addColumn<QStringList>("sections");
    const QByteArray good = encoded(twoSections);
    // Line 40 lies in the second section: the first one is read.
    QTest::newRow("word in the second section") << withLine(good, 40, "x") << "line 40 is not a number" << true
                                                << QStringList{"Camera Manager"};
    QTest::newRow("too large in the first line") << withLine(good, 1, "70000") << "line 1 is not a number" << false
                                                 << QStringList();
    QTest::newRow("empty") << QByteArray() << "is empty" << false << QStringList();
    QTest::newRow("not INI") << encoded(QStringLiteral("hello\n")) << "line 1 of its text" << false << QStringList();
    QTest::newRow("INI breaks later") << encoded(twoSections + QStringLiteral("no key here\n"))
                                      << "line 7 of its text" << true << QStringList{"Camera Manager", "USB"};
    QTest::newRow("duplicate section") << encoded(twoSections + QStringLiteral("[USB]\nx=1\n")) << "line 7 of its text"
                                       << true << QStringList{"Camera Manager", "USB"};
    QTest::newRow("only blank lines") << encoded(QStringLiteral("\n\n")) << "holds no sections" << false
                                      << QStringList();
    QTest::newRow("whole") << good << QString() << false << QStringList{"Camera Manager", "USB"};
}

void TestSupportFileReader::damagedFilesAreNamedWithTheirLine()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, errorPart);
    QFETCH(bool, partial);
    QFETCH(QStringList, sections);
    const SupportFileReader::Result result = SupportFileReader::parse(QStringLiteral("site.bin"), content);
    if (errorPart.isEmpty()) {
        QCOMPARE(result.error, QString());
    } else {
        QVERIFY2(result.error.contains(errorPart), qPrintable(result.error));
        QVERIFY2(result.error.contains("site.bin"), qPrintable(result.error));
    }
    QCOMPARE(result.partial, partial);
    QStringList read;
    for (const std::wstring& name : result.tree.sectionNames())
        read << QString::fromStdWString(name);
    QCOMPARE(read, sections);
}

void TestSupportFileReader::aMissingFileIsNamed()
{
    QTemporaryDir dir;
    const SupportFileReader::Result result = SupportFileReader::read(dir.filePath("gone.bin"));
    QVERIFY2(result.error.contains("gone.bin") && result.error.contains("can't be opened"), qPrintable(result.error));
    QVERIFY(result.tree.isEmpty());
}

void TestSupportFileReader::countSectionsFollowTheNameTable_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("section");
    QTest::newRow("USB") << int(SupportFileNames::UsbCount) << "USB";
    QTest::newRow("ETH") << int(SupportFileNames::EthCount) << "ETH";
    QTest::newRow("VPE") << int(SupportFileNames::VpeCount) << "DeviceCameraId";
}

void TestSupportFileReader::countSectionsFollowTheNameTable()
{
    QFETCH(int, kind);
    QFETCH(QString, section);
    QCOMPARE(QString::fromStdWString(SupportFileNames::countSection(SupportFileNames::CountKind(kind))), section);
    QCOMPARE(QString::fromWCharArray(SupportFileNames::text(SupportFileNames::Name(0))), QString("Camera Manager"));
}

QTEST_GUILESS_MAIN(TestSupportFileReader)
#include "tst_supportfilereader.moc"
