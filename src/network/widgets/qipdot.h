#pragma once

#include <QLabel>

// The "." between two octet fields of QIpEdit, painted in the fields' base
// colour so that the editor reads as one line edit.
class QIpDot final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QIpDot)

public:
    explicit QIpDot(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void updateBackground();
};
