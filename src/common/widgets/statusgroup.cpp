#include "common/widgets/statusgroup.h"

#include <QLabel>
#include <QVBoxLayout>

StatusGroup::StatusGroup(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
    , m_label(new QLabel(this))
{
    m_label->setObjectName(QStringLiteral("status"));
    m_label->setWordWrap(true);
    (new QVBoxLayout(this))->addWidget(m_label);
}
