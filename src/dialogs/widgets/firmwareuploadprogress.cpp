#include "dialogs/widgets/firmwareuploadprogress.h"

#include <QTimer>

FirmwareUploadProgress::FirmwareUploadProgress(int expectedSeconds, QWidget* parent,
                                               std::chrono::milliseconds step)
    : QProgressDialog(tr("Uploading firmware...\n\nPlease don't disconnect the device until this operation is "
                         "completed.\nThis may take up to %1 seconds.")
                          .arg(expectedSeconds),
                      QString(), 0, expectedSeconds, parent)
{
    setObjectName(QStringLiteral("firmwareUploadProgress"));
    setCancelButton(nullptr);
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(0);
    setValue(0);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* timer = new QTimer(this);
    timer->setInterval(step);
    connect(timer, &QTimer::timeout, this, &FirmwareUploadProgress::advance);
    timer->start();
}

void FirmwareUploadProgress::advance()
{
    if (value() < maximum() - 1)
        setValue(value() + 1);
}
