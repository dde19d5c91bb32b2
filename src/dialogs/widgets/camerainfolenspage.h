#pragma once

#include "dialogs/widgets/camerainfopage.h"

#include <cirro_api.h>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSlider;

// "Liquid lens": the lens's focal power within the range the camera
// reports, set as the slider or the number changes, and kept as the value
// the lens starts with.
class CameraInfoLensPage final : public CameraInfoPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfoLensPage)

public:
    CameraInfoLensPage(quint32 handle, QWidget* parent);

    Result load() override;
    QString title() const override { return tr("Liquid lens"); }

private slots:
    void onSliderMoved(int hundredths);
    void onNumberChanged(double dioptres);
    void onStore();

private:
    void apply(qint32 hundredths);
    void show(const pv_LiquidLens& lens);

    pv_LiquidLens m_lens{};
    QSlider* m_slider = nullptr;
    QDoubleSpinBox* m_number = nullptr;
    QLabel* m_range = nullptr;
    QLabel* m_startup = nullptr;
    QPushButton* m_store = nullptr;
};
