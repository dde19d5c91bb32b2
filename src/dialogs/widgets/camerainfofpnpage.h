#pragma once

#include "dialogs/fpncalibration.h"
#include "dialogs/widgets/camerainfopage.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

// "FPN calibration": the fixed-pattern-noise calibration in use, a new
// calibration with its progress (which can be cancelled), and the way back
// to the factory calibration.
class CameraInfoFpnPage final : public CameraInfoPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfoFpnPage)

public:
    static constexpr int pollIntervalMs = 100;

    CameraInfoFpnPage(quint32 handle, QWidget* parent);

    Result load() override;
    QString title() const override { return tr("FPN calibration"); }

private slots:
    void onStart();
    void onCancel();
    void onReset();
    void onPoll();

private:
    void show(const FpnCalibration::State& state);

    QLabel* m_state = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_start = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_reset = nullptr;
    QTimer* m_poll = nullptr;
};
