#pragma once

#include "dialogs/widgets/camerainfopage.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// "User EEPROM": the camera's user area as hexadecimal bytes and as text;
// editing one updates the other. "Write" stores the bytes of the hex field.
class CameraInfoEepromPage final : public CameraInfoPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfoEepromPage)

public:
    CameraInfoEepromPage(quint32 handle, int areaSize, QWidget* parent);

    Result load() override;
    QString title() const override { return tr("User EEPROM"); }

private slots:
    void onRead();
    void onWrite();
    void onClear();
    void onHexEdited();
    void onTextEdited(const QString& text);

private:
    void show(const QByteArray& bytes);
    void write(const QByteArray& bytes);

    int m_areaSize;
    QPlainTextEdit* m_hex = nullptr;
    QLineEdit* m_text = nullptr;
    QLabel* m_size = nullptr;
    QPushButton* m_write = nullptr;
    QPushButton* m_clear = nullptr;
};
