#pragma once

#include "common/result.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

// One page of the camera information dialog: it works on the opened camera
// through its handle. A function that the installed driver does not know
// leaves its controls disabled under a note that says so.
class CameraInfoPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfoPage)

public:
    CameraInfoPage(quint32 handle, QWidget* parent);

    // Reads the page from the camera. An unknown function marks the page as
    // not supported and counts as success; other failures are returned.
    virtual Result load() = 0;
    virtual QString title() const = 0;
    bool isSupported() const;

protected:
    quint32 handle() const { return m_handle; }
    // The page's controls go here; the note sits above.
    QWidget* content() const { return m_content; }
    // Disables the whole page, or only `control` when given.
    void markUnsupported(QWidget* control = nullptr);
    // Shows a failure in a message box; an unknown function disables
    // `control`. True on success.
    bool report(const Result& result, QWidget* control = nullptr);
    // A failed read that leaves the page usable where the function exists.
    Result loaded(const Result& result);

private:
    quint32 m_handle;
    QLabel* m_note = nullptr;
    QWidget* m_content = nullptr;
};
