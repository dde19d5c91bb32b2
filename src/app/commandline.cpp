#include "app/commandline.h"

#include "app/identity.h"

#include <QCoreApplication>

CommandLine::CommandLine()
    : m_additionalFunctions(QStringList{QStringLiteral("a"), QStringLiteral("additional-func")},
                            QCoreApplication::translate("main", "Open Additional functions"))
    , m_daemonConfig(QStringList{QStringLiteral("d"), QStringLiteral("daemon-config")},
                     QCoreApplication::translate("main", "Open Daemon control"))
{
    m_parser.setApplicationDescription(
        QCoreApplication::translate("main", "%1 Camera Manager command line helper")
            .arg(Identity::makerShortName()));
    m_parser.addHelpOption();
    m_parser.addOption(m_additionalFunctions);
    m_parser.addOption(m_daemonConfig);
}

void CommandLine::process(const QStringList& arguments)
{
    m_parser.process(arguments);
}

bool CommandLine::parse(const QStringList& arguments)
{
    return m_parser.parse(arguments);
}

CommandLine::Dialog CommandLine::dialogToOpen() const
{
    if (m_parser.isSet(m_additionalFunctions))
        return Dialog::AdditionalFunctions;
    if (m_parser.isSet(m_daemonConfig))
        return Dialog::DaemonControl;
    return Dialog::None;
}
