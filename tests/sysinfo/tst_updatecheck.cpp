#include "sysinfo/updatecheck.h"

#include "loopbackhttpserver.h"

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(UpdateCheckOutcome::Kind)
Q_DECLARE_METATYPE(LoopbackHttpServer::Response)

namespace {

const QVersionNumber installed({4, 97, 0, 0});

QByteArray document(const QByteArray& version, const QByteArray& extra = QByteArray())
{
    return R"({"format": 1, "latestVersion": ")" + version
           + R"(", "downloadPage": "https://downloads.example/cameramanager/")" + extra + "}";
}

} // namespace

class TestUpdateCheck : public QObject
{
    Q_OBJECT

private slots:
    void documents_data();
    void documents();
    void notesFollowTheLanguage();
    void serverFaults_data();
    void serverFaults();
    void anAddressThatIsNotWebIsRefusedWithoutAsking();
    void aRefusedConnectionSaysTheServerCannotBeReached();
    void cancelReportsOnce();

private:
    UpdateCheckOutcome run(UpdateCheck& check, const QUrl& url);
};

UpdateCheckOutcome TestUpdateCheck::run(UpdateCheck& check, const QUrl& url)
{
    QSignalSpy finished(&check, &UpdateCheck::finished);
    [&] { QVERIFY(finished.isValid()); }();
    check.start(url, installed);
    if (finished.isEmpty())
        [&] { QVERIFY(finished.wait(10000)); }();
    [&] { QCOMPARE(finished.count(), 1); }();
    return finished.isEmpty() ? UpdateCheckOutcome{} : finished.first().first().value<UpdateCheckOutcome>();
}

void TestUpdateCheck::documents_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<UpdateCheckOutcome::Kind>("kind");
    QTest::addColumn<QString>("message");

    using Kind = UpdateCheckOutcome::Kind;
    QTest::newRow("newer") << document("4.98.0.0") << Kind::UpdateAvailable
                           << "Version 4.98.0.0 is available; version 4.97.0.0 is installed.";
    QTest::newRow("newer build") << document("4.97.0.1") << Kind::UpdateAvailable << "Version 4.97.0.1 is available";
    QTest::newRow("same, shorter") << document("4.97") << Kind::UpToDate << "Version 4.97.0.0 is the latest version.";
    QTest::newRow("older") << document("4.9.9") << Kind::UpToDate << "is the latest version";
    QTest::newRow("unknown members ignored") << document("5", R"(, "mirror": [1, 2])") << Kind::UpdateAvailable
                                             << "Version 5 is available";
    QTest::newRow("malformed") << QByteArray(R"({"format": 1, "latestVersion": )") << Kind::Failed
                               << "not valid JSON";
    QTest::newRow("array") << QByteArray("[1]") << Kind::Failed << "not a JSON object";
    QTest::newRow("newer format") << QByteArray(R"({"format": 2})") << Kind::Failed
                                  << "has the format 2; this version reads format 1";
    QTest::newRow("no format") << QByteArray(R"({"latestVersion": "5"})") << Kind::Failed << "no format number";
    QTest::newRow("no version") << QByteArray(R"({"format": 1})") << Kind::Failed << "names no latest version";
    QTest::newRow("lying version") << document("4.98-beta") << Kind::Failed << "\"4.98-beta\" is not a version number";
    QTest::newRow("five numbers") << document("1.2.3.4.5") << Kind::Failed << "is not a version number";
    QTest::newRow("version as number")
        << QByteArray(R"({"format": 1, "latestVersion": 5, "downloadPage": "https://a.example/"})") << Kind::Failed
        << "is not a version number";
    QTest::newRow("file download page")
        << QByteArray(R"({"format": 1, "latestVersion": "5", "downloadPage": "file:///etc/passwd"})")
        << Kind::Failed << "\"file:///etc/passwd\" is not an http or https address";
    QTest::newRow("notes not by language") << document("5", R"(, "notes": "text")") << Kind::Failed
                                           << "notes are not a list of texts by language";
}

void TestUpdateCheck::documents()
{
    QFETCH(QByteArray, body);
    QFETCH(UpdateCheckOutcome::Kind, kind);
    QFETCH(QString, message);

    LoopbackHttpServer server;
    server.route(QStringLiteral("/latest.json"), {200, body, {}, true});
    UpdateCheck check;
    const UpdateCheckOutcome outcome = run(check, server.url(QStringLiteral("/latest.json")));
    QVERIFY2(outcome.message.contains(message), qPrintable(outcome.message));
    QCOMPARE(outcome.kind, kind);
    QCOMPARE(outcome.document.has_value(), kind != UpdateCheckOutcome::Kind::Failed);
    QVERIFY(!check.isRunning());
}

void TestUpdateCheck::notesFollowTheLanguage()
{
    QString error;
    const std::optional<UpdateDocument> parsed =
        UpdateDocument::parse(document("5", R"(, "notes": {"en": "E", "de": "D", "zh_CN": "Z"})"), error);
    QVERIFY2(parsed, qPrintable(error));
    QCOMPARE(parsed->notesFor(QStringLiteral("de")), QStringLiteral("D"));
    QCOMPARE(parsed->notesFor(QStringLiteral("de_AT")), QStringLiteral("D"));
    QCOMPARE(parsed->notesFor(QStringLiteral("zh_CN")), QStringLiteral("Z"));
    QCOMPARE(parsed->notesFor(QStringLiteral("fr")), QStringLiteral("E"));
    QCOMPARE(UpdateDocument().notesFor(QStringLiteral("de")), QString());
}

void TestUpdateCheck::serverFaults_data()
{
    QTest::addColumn<LoopbackHttpServer::Response>("response");
    QTest::addColumn<QString>("message");

    QTest::newRow("404") << LoopbackHttpServer::Response{404, "gone", {}, true}
                         << "The update server answered 404 Not Found.";
    QTest::newRow("500") << LoopbackHttpServer::Response{500, "", {}, true} << "The update server answered 500";
    QTest::newRow("slow") << LoopbackHttpServer::Response{200, {}, {}, false}
                          << "The update server did not answer within 1 second";
    QTest::newRow("redirect loop") << LoopbackHttpServer::Response{302, {}, "Location: /latest.json\r\n", true}
                                   << "redirects more than 3 time";
    QTest::newRow("oversized") << LoopbackHttpServer::Response{200, QByteArray(300 * 1024, ' ') + "{}", {}, true}
                               << "larger than 64 kB";
}

void TestUpdateCheck::serverFaults()
{
    QFETCH(LoopbackHttpServer::Response, response);
    QFETCH(QString, message);

    LoopbackHttpServer server;
    server.route(QStringLiteral("/latest.json"), response);
    UpdateCheck check;
    check.setLimits({300, 64 * 1024, 3});
    const UpdateCheckOutcome outcome = run(check, server.url(QStringLiteral("/latest.json")));
    QCOMPARE(outcome.kind, UpdateCheckOutcome::Kind::Failed);
    QVERIFY2(outcome.message.contains(message), qPrintable(outcome.message));
    QVERIFY(server.requestCount() >= 1);
}

void TestUpdateCheck::anAddressThatIsNotWebIsRefusedWithoutAsking()
{
    UpdateCheck check;
    for (const QString& address : {QStringLiteral("file:///etc/hostname"), QStringLiteral("ftp://127.0.0.1/x"),
                                   QStringLiteral("not an address"), QString()}) {
        const UpdateCheckOutcome outcome = run(check, QUrl(address));
        QCOMPARE(outcome.kind, UpdateCheckOutcome::Kind::Failed);
        QVERIFY2(outcome.message.contains(QLatin1String("is not an http or https address")),
                 qPrintable(outcome.message));
    }
}

void TestUpdateCheck::aRefusedConnectionSaysTheServerCannotBeReached()
{
    quint16 closedPort = 0;
    {
        LoopbackHttpServer server; // takes a free port and gives it back
        closedPort = quint16(server.url(QString()).port());
    }
    UpdateCheck check;
    const UpdateCheckOutcome outcome =
        run(check, QUrl(QStringLiteral("http://127.0.0.1:%1/latest.json").arg(closedPort)));
    QCOMPARE(outcome.kind, UpdateCheckOutcome::Kind::Failed);
    QVERIFY2(outcome.message.contains(QLatin1String("could not be reached")), qPrintable(outcome.message));
}

void TestUpdateCheck::cancelReportsOnce()
{
    LoopbackHttpServer server;
    server.route(QStringLiteral("/latest.json"), {200, {}, {}, false});
    UpdateCheck check;
    QSignalSpy finished(&check, &UpdateCheck::finished);
    QVERIFY(finished.isValid());
    check.start(server.url(QStringLiteral("/latest.json")), installed);
    QTRY_COMPARE(server.requestCount(), 1);
    QVERIFY(check.isRunning());
    check.cancel();
    QTRY_COMPARE(finished.count(), 1);
    QVERIFY(finished.first().first().value<UpdateCheckOutcome>().message.contains(QLatin1String("cancelled")));
    QTest::qWait(50);
    QCOMPARE(finished.count(), 1);
}

QTEST_GUILESS_MAIN(TestUpdateCheck)
#include "tst_updatecheck.moc"
