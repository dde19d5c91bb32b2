#include "network/widgets/qipedit.h"

#include "network/widgets/ipitemvalidator.h"
#include "network/widgets/qipdot.h"

#include <QHBoxLayout>
#include <QHostAddress>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int widestWidth = 200;
const int octetDigits = QStringLiteral("255").size();

} // namespace

QIpEdit::QIpEdit(QWidget* parent)
    : QFrame(parent)
    // "::" does not split into four parts, so the fields start empty.
    , m_address(std::make_shared<QHostAddress>(QHostAddress::AnyIPv6))
{
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Sunken);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);

    QPalette framePalette = palette();
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        framePalette.setBrush(group, QPalette::Window, framePalette.brush(group, QPalette::Base));
    setPalette(framePalette);
    setAutoFillBackground(true);
    QSizePolicy policy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum, QSizePolicy::LineEdit);
    setSizePolicy(policy);

    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (i > 0)
            layout->addWidget(new QIpDot(this), 0);
        m_fields[i] = createField();
        layout->addWidget(m_fields[i], 1);
    }
    auto* clear = new QPushButton(QIcon(QStringLiteral(":/images/delete2.png")), QString(), this);
    clear->setObjectName(QStringLiteral("clearAddress"));
    clear->setFlat(true);
    connect(clear, &QPushButton::clicked, this, [this] {
        for (QLineEdit* field : m_fields)
            field->clear();
    });
    layout->addWidget(clear);

    setText(m_address->toString());
    setMaximumWidth(widestWidth);
    setMaximumHeight(layout->sizeHint().height());
    setMinimumHeight(layout->minimumSize().height());
    resize(widestWidth, layout->sizeHint().height());
    // Queued, so that the slot sees the field after the key has reached it.
    connect(this, &QIpEdit::signalTextChanged, this, &QIpEdit::slotTextChanged, Qt::QueuedConnection);
}

QIpEdit::~QIpEdit() = default;

QLineEdit* QIpEdit::createField()
{
    auto* field = new QLineEdit(this);
    field->installEventFilter(this);
    field->setFrame(false);
    field->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    QFont font = field->font();
    font.setStyleHint(QFont::Monospace, QFont::PreferDefault);
    font.setFixedPitch(true);
    field->setFont(font);
    field->setStyleSheet(QStringLiteral("QLineEdit, QLineEdit:focus { border: none; }"));
    field->setValidator(new IPItemValidator(field));
    // Pasted text arrives without a key press; it is clamped all the same.
    connect(field, &QLineEdit::textEdited, this, [this, field] { emit signalTextChanged(field); });
    return field;
}

void QIpEdit::setText(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char('.'), Qt::KeepEmptyParts);
    if (parts.size() != int(m_fields.size()))
        return;
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setText(parts.at(int(i)));
    m_address->setAddress(text);
}

void QIpEdit::setAddress(const QString& text)
{
    m_address->setAddress(text);
    setText(m_address->toString());
}

void QIpEdit::setAddress(quint32 address)
{
    m_address->setAddress(address);
    setText(m_address->toString());
}

QString QIpEdit::text() const
{
    QStringList parts;
    for (const QLineEdit* field : m_fields)
        parts << (field->text().isEmpty() ? QStringLiteral("0") : field->text());
    return parts.join(QLatin1Char('.'));
}

quint32 QIpEdit::toIPv4Address()
{
    // Read in decimal: QHostAddress would take a field such as 010 as octal.
    quint32 address = 0;
    for (const QLineEdit* field : m_fields)
        address = address << 8 | std::min(field->text().toUInt(), 255u);
    m_address->setAddress(address);
    return address;
}

QString QIpEdit::addressText()
{
    toIPv4Address();
    return m_address->toString();
}

QSize QIpEdit::sizeHint() const
{
    return layout()->sizeHint();
}

bool QIpEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto field = std::find(m_fields.begin(), m_fields.end(), watched);
        if (field != m_fields.end())
            handleKey(int(field - m_fields.begin()), static_cast<QKeyEvent*>(event)->key());
    }
    return QFrame::eventFilter(watched, event);
}

void QIpEdit::handleKey(int field, int key)
{
    QLineEdit* edit = m_fields[std::size_t(field)];
    switch (key) {
    case Qt::Key_Home:
        focusField(0, 0);
        // Home ends where End does: the last field, cursor at its end.
        Q_FALLTHROUGH();
    case Qt::Key_End:
        focusField(3, m_fields[3]->text().size());
        emit signalTextChanged(edit);
        break;
    case Qt::Key_Left:
        if (edit->cursorPosition() == 0 && field > 0)
            focusField(field - 1, m_fields[std::size_t(field - 1)]->text().size());
        break;
    case Qt::Key_Right:
        if ((edit->text().isEmpty() || edit->cursorPosition() == edit->text().size()) && field < 3)
            focusField(field + 1, 0);
        break;
    default:
        emit signalTextChanged(edit);
        break;
    }
}

void QIpEdit::focusField(int field, int cursorPosition)
{
    QLineEdit* edit = m_fields[std::size_t(field)];
    edit->setFocus(Qt::OtherFocusReason);
    edit->setCursorPosition(cursorPosition);
}

void QIpEdit::slotTextChanged(QLineEdit* pEdit)
{
    const auto found = std::find(m_fields.begin(), m_fields.end(), pEdit);
    if (found == m_fields.end()) {
        emit editingFinished();
        return;
    }
    const int field = int(found - m_fields.begin());
    if (pEdit->text().size() == octetDigits && pEdit->cursorPosition() == pEdit->text().size() && field < 3) {
        QLineEdit* next = m_fields[std::size_t(field + 1)];
        next->setFocus();
        next->selectAll();
    }
    if (pEdit->text().toUInt() > 255)
        pEdit->setText(QStringLiteral("255"));
    if (pEdit->hasAcceptableInput())
        emit editingFinished();
}
