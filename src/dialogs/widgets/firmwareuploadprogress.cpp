#include "dialogs/widgets/firmwareuploadprogress.h"

#include <QTimer>

FirmwareUploadProgress::FirmwareUploadProgress(int expectedSeconds, QWidget* parent, ProgressSource source,
                                               std::chrono::milliseconds step)
    : QProgressDialog(QString(), QString(), 0, expectedSeconds, parent)
    , m_text(tr("Uploading firmware...\n\nPlease don't disconnect the device until this operation is "
                "completed.\nThis may take up to %1 seconds.")
                 .arg(expectedSeconds))
    , m_source(std::move(source))
{
    setLabelText(m_text);
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
    ++m_elapsedSeconds;
    setLabelText(m_text + QStringLiteral("\n\n") + tr("Elapsed: %n second(s)", nullptr, m_elapsedSeconds));
    const std::optional<int> permille = m_source ? m_source() : std::nullopt;
    const int next = permille ? *permille * maximum() / 1000 : value() + 1;
    setValue(std::min(std::max(next, value()), maximum() - 1));
}
