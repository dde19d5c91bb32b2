#pragma once

#include <QGroupBox>

class QLabel;

// A titled group holding one word-wrapped label: the status line of a dialog.
class StatusGroup final : public QGroupBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatusGroup)

public:
    StatusGroup(const QString& title, QWidget* parent);

    // Its object name is "status".
    QLabel* label() const { return m_label; }

private:
    QLabel* m_label;
};
