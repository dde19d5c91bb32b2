#pragma once

#include <QFrame>

#include <array>
#include <memory>

class QHostAddress;
class QLineEdit;

// An IPv4 address editor: four octet fields with dots between them and a
// button that clears them. Typing moves on to the next field after three
// digits; a value above 255 becomes 255.
class QIpEdit final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QIpEdit)

public:
    explicit QIpEdit(QWidget* parent = nullptr);
    ~QIpEdit() override;

    // Four parts split at "." fill the fields; any other count changes nothing.
    void setText(const QString& text);
    void setAddress(const QString& text);
    // Host order: the first octet in the most significant byte.
    void setAddress(quint32 address);
    // The fields joined by ".", an empty field read as "0".
    QString text() const;
    quint32 toIPv4Address();
    // The address normalised: a field holding 010 reads back as 10.
    QString addressText();

    QSize sizeHint() const override;

signals:
    void signalTextChanged(QLineEdit* pEdit);
    void editingFinished();

public slots:
    void slotTextChanged(QLineEdit* pEdit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* createField();
    void handleKey(int field, int key);
    void focusField(int field, int cursorPosition);

    std::array<QLineEdit*, 4> m_fields{};
    std::shared_ptr<QHostAddress> m_address;
};
