#pragma once

#include "driver/debugmask.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

// The debug output mask of the USB or the ETH camera driver: 64 trace
// categories as check boxes, the mask as text, read from and written to the
// driver's settings file.
class QDebugOutCtrl final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QDebugOutCtrl)

public:
    explicit QDebugOutCtrl(QWidget* parent);

public slots:
    void onBit();
    void onSetMask();
    void onGetMask();
    void onTypeChanged(bool toggled);

private slots:
    void onMaskEdited();
    void onShowRecentOutput();

private:
    QWidget* buildTypeGroup();
    QWidget* buildFlagGroup();
    QWidget* buildOutputGroup();
    DebugMask::Driver driver() const;
    quint64 maskOfBoxes() const;
    void showMask(quint64 mask);
    void showBoxes(quint64 mask);

    QLineEdit* m_mask = nullptr;
    QLabel* m_destination = nullptr;
    QRadioButton* m_usb = nullptr;
    QRadioButton* m_eth = nullptr;
    std::array<QCheckBox*, 64> m_bits{};
};
