#include "app/widgets/commandregistry.h"

#include <QAbstractButton>
#include <QAction>

CommandRegistry::CommandRegistry(QObject* parent)
    : QObject(parent)
{
}

CommandRegistry::~CommandRegistry() = default;

void CommandRegistry::setHandler(Command command, std::function<void()> handler)
{
    m_handlers.insert(command, std::move(handler));
    updateEnabled(command);
}

bool CommandRegistry::isHandled(Command command) const
{
    return m_handlers.contains(command) || m_requests.contains(command);
}

QAction* CommandRegistry::action(Command command)
{
    auto found = m_actions.find(command);
    if (found != m_actions.end())
        return *found;
    auto* created = new QAction(this);
    // A disabled action still reports a trigger() call.
    connect(created, &QAction::triggered, this, [this, command, created] {
        const auto handler = m_handlers.constFind(command);
        if (created->isEnabled() && handler != m_handlers.constEnd())
            (*handler)();
    });
    m_actions.insert(command, created);
    updateEnabled(command);
    return created;
}

void CommandRegistry::bind(QAbstractButton* button, Command command)
{
    QAction* commandAction = action(command);
    connect(button, &QAbstractButton::clicked, commandAction, &QAction::trigger);
    connect(commandAction, &QAction::changed, button,
            [button, commandAction] { button->setEnabled(commandAction->isEnabled()); });
    button->setEnabled(commandAction->isEnabled());
}

void CommandRegistry::setUsable(const QSet<Command>& usable)
{
    m_usable = usable;
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it)
        updateEnabled(it.key());
}

void CommandRegistry::updateEnabled(Command command)
{
    if (QAction* commandAction = m_actions.value(command))
        commandAction->setEnabled(m_handlers.contains(command) && m_usable.contains(command));
}
