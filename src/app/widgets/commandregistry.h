#pragma once

#include "camera/controlstates.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class QAbstractButton;
class QAction;

// The main window's commands in one place. Each command has one action; the
// action is enabled only while a handler is registered and the control states
// allow the command, and a button bound to it follows. The camera list's
// context menu asks the same registry which of its requests are handled, so
// that buttons and menu entries decide alike.
class CommandRegistry final : public QObject, public ControlStates::Handlers
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CommandRegistry)

public:
    using Command = ControlStates::Command;

    explicit CommandRegistry(QObject* parent = nullptr);
    ~CommandRegistry() override;

    // The handler runs when the command's action triggers.
    void setHandler(Command command, std::function<void()> handler);
    // Connects a request signal (of the camera list) to the receiver's slot
    // and counts the command as handled.
    template <typename Sender, typename Signal, typename Receiver, typename Slot>
    void handleRequest(Command command, const Sender* sender, Signal signal, const Receiver* receiver, Slot slot,
                       Qt::ConnectionType type = Qt::AutoConnection);
    bool isHandled(Command command) const override;

    QAction* action(Command command);
    // Clicking the button triggers the command's action; the button is enabled
    // exactly when the action is.
    void bind(QAbstractButton* button, Command command);
    // The commands that the current selection and host allow.
    void setUsable(const QSet<Command>& usable);

private:
    void updateEnabled(Command command);

    QHash<Command, QAction*> m_actions;
    QHash<Command, std::function<void()>> m_handlers;
    QSet<Command> m_requests;
    QSet<Command> m_usable;
};

template <typename Sender, typename Signal, typename Receiver, typename Slot>
void CommandRegistry::handleRequest(Command command, const Sender* sender, Signal signal, const Receiver* receiver,
                                    Slot slot, Qt::ConnectionType type)
{
    connect(sender, signal, receiver, slot, type);
    m_requests.insert(command);
}
