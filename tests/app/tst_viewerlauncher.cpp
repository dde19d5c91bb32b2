#include "app/viewerlauncher.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

Camera cameraWith(const QString& serial, quint32 deviceId)
{
    pv_ExtendedDeviceInformation record{};
    record.deviceId = deviceId;
    for (int i = 0; i < serial.size() && i < 31; ++i)
        record.serialNumber[i] = serial.at(i).unicode();
    return Camera(record);
}

} // namespace

class TestViewerLauncher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void arguments_data();
    void arguments();
    void configuredViewerIsStartedWithTheCamera();
    void missingViewerFailsQuietly_data();
    void missingViewerFailsQuietly();

private:
    QTemporaryDir dir;
};

void TestViewerLauncher::initTestCase()
{
    QVERIFY(dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir.path());
}

void TestViewerLauncher::arguments_data()
{
    QTest::addColumn<QString>("serial");
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("serial number") << "4102000001" << 0u << QStringList{"-s", "4102000001"};
    QTest::newRow("no serial number") << "" << 1002u << QStringList{"-d", "1002"};
    QTest::newRow("undecodable serial number") << QString(QChar(QChar::ReplacementCharacter)) + "0001" << 2500u
                                               << QStringList{"-d", "2500"};
    QTest::newRow("replacement character inside") << "41" + QString(QChar(QChar::ReplacementCharacter)) << 7u
                                                  << QStringList{"-s", "41\uFFFD"};
}

void TestViewerLauncher::arguments()
{
    QFETCH(QString, serial);
    QFETCH(quint32, deviceId);
    QTEST(ViewerLauncher::arguments(cameraWith(serial, deviceId)), "expected");
}

void TestViewerLauncher::configuredViewerIsStartedWithTheCamera()
{
    const QString output = dir.filePath("arguments.txt");
    const QString script = dir.filePath("viewer.sh");
    QFile file(script);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("#!/bin/sh\necho \"$@\" > '%1'\n").arg(output).toUtf8());
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

    QSettings("Parvel", "CameraManager").setValue(ViewerLauncher::settingsKey(), script);
    QCOMPARE(ViewerLauncher::viewerPath(), script);
    QVERIFY(ViewerLauncher::open(cameraWith("", 1004)));
    const auto written = [&output] {
        QFile file(output);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    };
    QTRY_COMPARE(written(), QByteArray("-d 1004"));
}

void TestViewerLauncher::missingViewerFailsQuietly_data()
{
    QTest::addColumn<QString>("configured"); // empty: no setting
    QTest::newRow("none on PATH") << QString();
    QTest::newRow("configured file missing") << dir.filePath("gone/CirroViewer");
    QTest::newRow("configured file not executable") << dir.filePath("viewer.txt");
}

void TestViewerLauncher::missingViewerFailsQuietly()
{
    QFETCH(QString, configured);
    QFile text(dir.filePath("viewer.txt"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.close();
    if (configured.isEmpty())
        QSettings("Parvel", "CameraManager").remove(ViewerLauncher::settingsKey());
    else
        QSettings("Parvel", "CameraManager").setValue(ViewerLauncher::settingsKey(), configured);
    qputenv("PATH", dir.filePath("empty").toLocal8Bit());
    QVERIFY(ViewerLauncher::viewerPath().isEmpty());
    QVERIFY(!ViewerLauncher::open(cameraWith("4102000001", 0)));
}

QTEST_GUILESS_MAIN(TestViewerLauncher)
#include "tst_viewerlauncher.moc"
