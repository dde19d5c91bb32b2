#pragma once

#include "camera/controlstates.h"

#include <QGroupBox>
#include <QHash>

class CommandRegistry;
class QCheckBox;
class QPushButton;

// The main window's "Control area": the expert-mode and refresh check boxes
// over two columns of command buttons. Each button triggers its command in the
// registry and is enabled exactly when the command is.
class ControlArea final : public QGroupBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ControlArea)

public:
    explicit ControlArea(CommandRegistry& commands, QWidget* parent = nullptr);

    QCheckBox* expertMode() const { return m_expertMode; }
    QCheckBox* autoRefresh() const { return m_autoRefresh; }
    void retranslate();

private:
    QPushButton* addButton(const char* objectName, ControlStates::Command command);
    void buildLayout();
    void setTabOrder();

    CommandRegistry& m_commands;
    QCheckBox* m_expertMode = nullptr;
    QCheckBox* m_autoRefresh = nullptr;
    QHash<ControlStates::Command, QPushButton*> m_buttons;
};
