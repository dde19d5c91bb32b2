// The real drivers' output through journalctl and dmesg, played by small
// scripts on a PATH of the test's own: the arguments we pass, what we make of
// their answers, and that a program that hangs can't hold the caller.
#include "driver/hostdriverlog.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// What a fake program prints and how it ends.
struct Answer
{
    Answer(QByteArray output = {}, QByteArray errorOutput = {}, int exitCode = 0, bool hangs = false)
        : output(std::move(output))
        , errorOutput(std::move(errorOutput))
        , exitCode(exitCode)
        , hangs(hangs)
    {
    }

    QByteArray output;
    QByteArray errorOutput;
    int exitCode;
    bool hangs;
};

QByteArray quoted(const QByteArray& text)
{
    QByteArray escaped = text;
    escaped.replace('\'', "'\\''");
    return '\'' + escaped + '\'';
}

QByteArray reply(const Answer& answer)
{
    if (answer.hangs)
        return "exec /bin/sleep 30\n";
    return "printf '%s' " + quoted(answer.output) + "\nprintf '%s' " + quoted(answer.errorOutput)
           + " >&2\nexit " + QByteArray::number(answer.exitCode) + '\n';
}

const QByteArray noEntries = "-- No entries --\n";

} // namespace

Q_DECLARE_METATYPE(Answer)

class TestHostDriverLog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void readsJournalAndKernelLog_data();
    void readsJournalAndKernelLog();
    void withoutJournalctlReadsDmesg_data();
    void withoutJournalctlReadsDmesg();
    void hangingProgramIsStoppedInTime();

private:
    // A program that records its arguments in <name>.<first argument>.args,
    // answering `kernel` when its first argument is -k and `unit` otherwise.
    void install(const char* name, const Answer& unit, const Answer& kernel = {});
    QString arguments(const QString& file) const;

    std::unique_ptr<QTemporaryDir> m_bin;
    QByteArray m_path;
};

void TestHostDriverLog::init()
{
    m_bin = std::make_unique<QTemporaryDir>();
    QVERIFY(m_bin->isValid());
    m_path = qgetenv("PATH");
    qputenv("PATH", m_bin->path().toLocal8Bit());
}

void TestHostDriverLog::cleanup()
{
    qputenv("PATH", m_path);
    m_bin.reset();
}

void TestHostDriverLog::install(const char* name, const Answer& unit, const Answer& kernel)
{
    QFile script(QDir(m_bin->path()).filePath(QLatin1String(name)));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s\\n' \"$*\" > \"$0.$1.args\"\nif [ \"$1\" = -k ]; then\n" + reply(kernel)
                 + "fi\n" + reply(unit));
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QString TestHostDriverLog::arguments(const QString& file) const
{
    QFile recorded(QDir(m_bin->path()).filePath(file));
    return recorded.open(QIODevice::ReadOnly) ? QString::fromUtf8(recorded.readAll()).trimmed() : QString();
}

void TestHostDriverLog::readsJournalAndKernelLog_data()
{
    QTest::addColumn<Answer>("unit");
    QTest::addColumn<Answer>("kernel");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("problems");

    const Answer unitLines{"-- Boot 3f2a --\n"
                           "2026-11-23T14:31:05+0100 host cirro_usbd[812]: device 3 opened\n"
                           "2026-11-23T14:31:07+0100 host cirro_usbd[812]: device 3 closed\n"};
    const Answer kernelLines{"2026-11-23T14:31:06+0100 host kernel: cirro_usb 2-1:1.0: firmware 3.2.1\n"};
    QTest::newRow("both, in time order")
        << unitLines << kernelLines << true
        << QStringList{"2026-11-23T14:31:05+0100 host cirro_usbd[812]: device 3 opened",
                       "2026-11-23T14:31:06+0100 host kernel: cirro_usb 2-1:1.0: firmware 3.2.1",
                       "2026-11-23T14:31:07+0100 host cirro_usbd[812]: device 3 closed"}
        << QStringList();
    // journalctl --grep ends with 1 when nothing matches.
    QTest::newRow("nothing logged yet") << Answer{noEntries} << Answer{noEntries, {}, 1} << true << QStringList()
                                        << QStringList();
    const QByteArray hint = "Hint: You are currently not seeing messages from other users and the system.\n"
                            "      Users in groups 'adm', 'systemd-journal' can see all messages.\n";
    QTest::newRow("entries hidden from this user, kernel log readable")
        << Answer{noEntries, hint} << kernelLines << true
        << QStringList{"2026-11-23T14:31:06+0100 host kernel: cirro_usb 2-1:1.0: firmware 3.2.1"}
        << QStringList{"The journal can't be read: Hint: You are currently not seeing messages from other users "
                       "and the system. Users in groups 'adm', 'systemd-journal' can see all messages."};
    QTest::newRow("no journal at all")
        << Answer{noEntries, "No journal files were found.\n"}
        << Answer{noEntries, "No journal files were found.\n", 1} << false << QStringList()
        << QStringList{"The journal can't be read: No journal files were found.",
                       "The kernel log can't be read: No journal files were found."};
    QTest::newRow("failure without a word") << unitLines << Answer{{}, {}, 2} << true
                                            << QStringList{"2026-11-23T14:31:05+0100 host cirro_usbd[812]: device 3 opened",
                                                           "2026-11-23T14:31:07+0100 host cirro_usbd[812]: device 3 closed"}
                                            << QStringList{"The kernel log can't be read: journalctl ended with code 2"};
}

void TestHostDriverLog::readsJournalAndKernelLog()
{
    QFETCH(Answer, unit);
    QFETCH(Answer, kernel);
    QFETCH(bool, readable);
    QFETCH(QStringList, lines);
    QFETCH(QStringList, problems);
    install("journalctl", unit, kernel);

    const DriverOutput::Recent recent = HostDriverLog::recent(QStringLiteral("cirro_usb"), 50);

    QCOMPARE(arguments(QStringLiteral("journalctl.-u.args")),
             QStringLiteral("-u cirro_usb.service -n 50 --no-pager -o short-iso"));
    QCOMPARE(arguments(QStringLiteral("journalctl.-k.args")),
             QStringLiteral("-k --grep cirro_usb -n 50 --no-pager -o short-iso"));
    QCOMPARE(recent.result.isSuccess(), readable);
    QCOMPARE(recent.lines, lines);
    if (readable)
        QCOMPARE(recent.problems, problems);
    else
        QCOMPARE(recent.result.text(), problems.join(QLatin1Char('\n')));
}

void TestHostDriverLog::withoutJournalctlReadsDmesg_data()
{
    QTest::addColumn<Answer>("dmesg");
    QTest::addColumn<int>("maxLines");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QStringList>("lines");

    const Answer kernel{"2026-11-23T14:30:00,000000+01:00 usb 2-1: new SuperSpeed USB device\n"
                        "2026-11-23T14:30:01,000000+01:00 cirro_eth 0000:03:00.0: adapter bound\n"
                        "2026-11-23T14:30:02,000000+01:00 cirro_eth 0000:03:00.0: heartbeat lost\n"
                        "2026-11-23T14:30:03,000000+01:00 cirro_usb 2-1:1.0: probe\n"};
    QTest::newRow("the module's lines") << kernel << 10 << true
                                        << QStringList{"2026-11-23T14:30:01,000000+01:00 cirro_eth 0000:03:00.0: adapter bound",
                                                       "2026-11-23T14:30:02,000000+01:00 cirro_eth 0000:03:00.0: heartbeat lost"};
    QTest::newRow("the last of them") << kernel << 1 << true
                                      << QStringList{"2026-11-23T14:30:02,000000+01:00 cirro_eth 0000:03:00.0: heartbeat lost"};
    QTest::newRow("kernel buffer restricted")
        << Answer{{}, "dmesg: read kernel buffer failed: Operation not permitted\n", 1} << 10 << false << QStringList();
}

void TestHostDriverLog::withoutJournalctlReadsDmesg()
{
    QFETCH(Answer, dmesg);
    QFETCH(int, maxLines);
    QFETCH(bool, readable);
    QFETCH(QStringList, lines);
    install("dmesg", dmesg);

    const DriverOutput::Recent recent = HostDriverLog::recent(QStringLiteral("cirro_eth"), maxLines);

    QCOMPARE(arguments(QStringLiteral("dmesg.--time-format.args")), QStringLiteral("--time-format iso"));
    QCOMPARE(recent.result.isSuccess(), readable);
    QCOMPARE(recent.lines, lines);
    const QString journal = QStringLiteral("The journal can't be read: journalctl is not installed");
    if (readable) {
        QCOMPARE(recent.problems, QStringList{journal});
        QCOMPARE(recent.source, QStringLiteral("the kernel log"));
    } else {
        QCOMPARE(recent.result.text(),
                 journal + QStringLiteral("\nThe kernel log can't be read: dmesg: read kernel buffer failed: "
                                          "Operation not permitted"));
    }
}

void TestHostDriverLog::hangingProgramIsStoppedInTime()
{
    install("journalctl", Answer{{}, {}, 0, true}, Answer{{}, {}, 0, true});
    QElapsedTimer clock;
    clock.start();

    const DriverOutput::Recent recent =
        HostDriverLog::recent(QStringLiteral("cirro_usb"), 10, std::chrono::milliseconds(300));

    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!recent.result.isSuccess());
    QCOMPARE(recent.result.text(), QStringLiteral("The journal can't be read: journalctl did not answer in time\n"
                                                  "The kernel log can't be read: journalctl did not answer in time"));
}

QTEST_GUILESS_MAIN(TestHostDriverLog)
#include "tst_hostdriverlog.moc"
