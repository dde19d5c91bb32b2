#include "network/widgets/qipdot.h"

#include <QApplication>
#include <QEvent>

QIpDot::QIpDot(QWidget* parent)
    : QLabel(QStringLiteral("."), parent)
{
    updateBackground();
}

void QIpDot::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        updateBackground();
    QLabel::changeEvent(event);
}

void QIpDot::updateBackground()
{
    // A disabled dot takes the Inactive group's colour, not the Disabled one's.
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Inactive;
    const QColor base = QApplication::palette("QLineEdit").color(group, QPalette::Base);
    setStyleSheet(QStringLiteral("background: ") + base.name());
}
