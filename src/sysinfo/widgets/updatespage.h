#pragma once

#include "sysinfo/infonode.h"
#include "sysinfo/updatecheck.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;

// "Updates": the address of the update document and "Check for updates",
// which asks only when the user presses it.
class UpdatesPage final : public QWidget
{
    Q_OBJECT

public:
    UpdatesPage(QString language, QVersionNumber installed, QWidget* parent = nullptr);

    UpdateCheck& check() { return m_check; }
    InfoNode outline() const;

public slots:
    void onCheckClicked();

private:
    void onFinished(const UpdateCheckOutcome& outcome);
    void showRunning(bool running);

    QString m_language;
    QVersionNumber m_installed;
    UpdateCheck m_check;
    QLineEdit* m_address = nullptr;
    QPushButton* m_checkButton = nullptr;
    QLabel* m_result = nullptr;
    QLabel* m_notes = nullptr;
    std::optional<UpdateCheckOutcome> m_lastOutcome;
};
