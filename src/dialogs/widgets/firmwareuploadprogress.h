#pragma once

#include <QProgressDialog>

#include <chrono>
#include <functional>
#include <optional>

// The window-modal progress of a starter firmware upload, with the time it
// has taken so far. Where the driver reports how far the upload has come the
// bar shows that; otherwise it advances by time, one step a second. Either
// way it stops one step short of the end until the upload's result closes
// the dialog.
class FirmwareUploadProgress final : public QProgressDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FirmwareUploadProgress)

public:
    // Permille of the upload done, or nothing when the driver doesn't say.
    using ProgressSource = std::function<std::optional<int>()>;

    FirmwareUploadProgress(int expectedSeconds, QWidget* parent, ProgressSource source = {},
                           std::chrono::milliseconds step = std::chrono::seconds(1));

private:
    void advance();

    QString m_text;
    ProgressSource m_source;
    int m_elapsedSeconds = 0;
};
