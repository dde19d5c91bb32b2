#pragma once

#include <QProgressDialog>

#include <chrono>

// The window-modal progress of a starter firmware upload. The driver reports
// no progress, so the bar advances by time, one step a second, and stops one
// step short of the end until the upload's result closes the dialog.
class FirmwareUploadProgress final : public QProgressDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FirmwareUploadProgress)

public:
    FirmwareUploadProgress(int expectedSeconds, QWidget* parent,
                           std::chrono::milliseconds step = std::chrono::seconds(1));

private:
    void advance();
};
