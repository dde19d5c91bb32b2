#pragma once

#include <QGroupBox>

class QLabel;
class QMovie;
struct StatusAssessment;

// The main window's status group: a coloured status text with a busy
// indicator, a second line for warnings, the picture of the selected camera's
// family and, when the program runs as root, a warning about that.
class StatusPanel final : public QGroupBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatusPanel)

public:
    StatusPanel(bool elevated, QWidget* parent = nullptr);

    // The text in the colour; the busy indicator runs while showProgress.
    void print(const QString& text, const QColor& colour, bool showProgress);
    // The second line and the picture of an assessment; no camera clears the picture.
    void showDetails(const StatusAssessment& status, bool hasCamera);
    // A line of its own for the outcome of the last change of a camera (its
    // network settings, its firmware), which stays while the status text
    // follows the selection and the driver's events.
    void showOutcomeNote(const QString& text, const QColor& colour);
    // What the selected camera's network adapter lacks and how to fix it;
    // empty hides the line.
    void showAdapterAdvice(const QString& text);
    void retranslate();

private:
    void showBusyIndicator(bool show);

    QLabel* m_busyIndicator = nullptr;
    QMovie* m_busyMovie = nullptr;
    QLabel* m_statusText = nullptr;
    QLabel* m_secondStatusLine = nullptr;
    QLabel* m_cameraPicture = nullptr;
    QLabel* m_adapterAdvice = nullptr;
    QLabel* m_networkNote = nullptr;
    QLabel* m_privilegeWarning = nullptr;
};
