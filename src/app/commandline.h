#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>

// The program's command line: the help option and the two options that open a
// driver dialog on top of the main window.
class CommandLine final
{
public:
    enum class Dialog { None, AdditionalFunctions, DaemonControl };

    CommandLine();

    // Parses the arguments; help and unknown options end the process.
    void process(const QStringList& arguments);
    // Parses without side effects; false on an unknown option.
    bool parse(const QStringList& arguments);

    Dialog dialogToOpen() const;
    QString helpText() const { return m_parser.helpText(); }
    QString errorText() const { return m_parser.errorText(); }

private:
    QCommandLineParser m_parser;
    QCommandLineOption m_additionalFunctions;
    QCommandLineOption m_daemonConfig;
};
