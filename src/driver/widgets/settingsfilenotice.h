#pragma once

#include <QLabel>

// A line above a dialog's controls that says why the driver services'
// settings files can't be changed: no right to write them, or a file that
// can't be read (with its path and line). Hidden when both can be changed.
class SettingsFileNotice final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsFileNotice)

public:
    explicit SettingsFileNotice(QWidget* parent);

    void refresh();
};
