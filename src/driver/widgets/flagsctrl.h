#pragma once

#include <QDialog>

// "Driver flags": the on/off switches of the camera drivers' settings files,
// two columns of check boxes that write on every click.
class FlagsCtrl final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlagsCtrl)

public:
    explicit FlagsCtrl(QWidget* parent);
};
