#pragma once

#include <QCheckBox>

// A check box bound to one integer value of a driver service's settings file:
// it reads its state when created and writes 1 or 0 on every click. Without
// the right to change the file it shows the state but is disabled.
class CheckBoxEx final : public QCheckBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CheckBoxEx)

public:
    // keyPath: the driver service ("cirro_usb"); subKey: the group.
    CheckBoxEx(const QString& label, const QString& keyPath, const QString& subKey, const QString& valueName,
               QWidget* parent = nullptr);

public slots:
    void onClicked();

private:
    QString key() const;
    void read();

    QString m_keyPath;
    QString m_subKey;
    QString m_valueName;
};
