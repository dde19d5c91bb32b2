#include "dialogs/parametersetfile.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

ParameterSet sample()
{
    return {QStringLiteral("CR-U3-50M"), {{"ExposureTime", 8100}, {"Gain", -120}, {"Width", 2448}}};
}

} // namespace

class TestParameterSetFile : public QObject
{
    Q_OBJECT

private slots:
    void roundTripThroughAFile();
    void damagedFilesAreRefused_data();
    void damagedFilesAreRefused();
    void truncatedAnywhereIsRefused();
    void unwritableTargetIsReported();
};

void TestParameterSetFile::roundTripThroughAFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath("set.ini");
    QVERIFY(ParameterSetFile::save(path, sample()).isSuccess());
    ParameterSet shape = sample();
    for (auto& value : shape.values)
        value.second = 0;
    ParameterSet loaded;
    const Result result = ParameterSetFile::load(path, shape, &loaded);
    QVERIFY2(result.isSuccess(), qPrintable(result.text()));
    QCOMPARE(loaded, sample());
}

void TestParameterSetFile::damagedFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const QByteArray good = ParameterSetFile::text(sample());
    ParameterSet otherModel = sample();
    otherModel.model = "CR-G5-12C";
    QTest::newRow("another model") << ParameterSetFile::text(otherModel) << "model \"CR-G5-12C\"";
    ParameterSet fewer = sample();
    fewer.values.removeLast();
    QTest::newRow("fewer values") << ParameterSetFile::text(fewer) << "2 values";
    ParameterSet renamed = sample();
    renamed.values[1].first = "Gamma";
    QTest::newRow("a value missing") << ParameterSetFile::text(renamed) << "\"Gain\"";
    QByteArray edited = good;
    edited.replace("8100", "8200");
    QTest::newRow("edited without checksum") << edited << "checksum";
    QTest::newRow("no INI") << QByteArray("garbage\n[Check]\nChecksum=1\n") << "no parameter set file";
    QTest::newRow("empty") << QByteArray() << "incomplete";
}

void TestParameterSetFile::damagedFilesAreRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    ParameterSet loaded{"untouched", {}};
    const Result result = ParameterSetFile::parse(text, sample(), &loaded);
    QVERIFY(!result.isSuccess());
    QVERIFY2(result.text().contains(reason), qPrintable(result.text()));
    QCOMPARE(loaded.model, QString("untouched"));
}

void TestParameterSetFile::truncatedAnywhereIsRefused()
{
    const QByteArray text = ParameterSetFile::text(sample());
    ParameterSet loaded;
    QVERIFY(ParameterSetFile::parse(text, sample(), &loaded).isSuccess());
    // Cutting off the final line feed leaves the content whole.
    for (int length = 0; length < text.size() - 1; ++length)
        QVERIFY2(!ParameterSetFile::parse(text.left(length), sample(), &loaded).isSuccess(),
                 qPrintable(QString::number(length)));
}

void TestParameterSetFile::unwritableTargetIsReported()
{
    const Result result = ParameterSetFile::save("/nonexistent-dir/set.ini", sample());
    QVERIFY(!result.isSuccess());
    QVERIFY(result.text().contains("/nonexistent-dir/set.ini"));
}

QTEST_GUILESS_MAIN(TestParameterSetFile)
#include "tst_parametersetfile.moc"
