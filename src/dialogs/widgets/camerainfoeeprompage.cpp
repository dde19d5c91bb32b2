#include "dialogs/widgets/camerainfoeeprompage.h"

#include "dialogs/usereeprom.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

CameraInfoEepromPage::CameraInfoEepromPage(quint32 handle, int areaSize, QWidget* parent)
    : CameraInfoPage(handle, parent)
    , m_areaSize(areaSize)
{
    setObjectName(QStringLiteral("userEepromPage"));
    m_hex = new QPlainTextEdit(content());
    m_hex->setObjectName(QStringLiteral("eepromHex"));
    m_hex->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_hex->setTabChangesFocus(true);
    m_text = new QLineEdit(content());
    m_text->setObjectName(QStringLiteral("eepromText"));
    m_size = new QLabel(content());
    m_size->setObjectName(QStringLiteral("eepromSize"));
    auto* read = new QPushButton(tr("Read"), content());
    read->setObjectName(QStringLiteral("readEeprom"));
    m_write = new QPushButton(tr("Write"), content());
    m_write->setObjectName(QStringLiteral("writeEeprom"));
    m_clear = new QPushButton(tr("Clear"), content());
    m_clear->setObjectName(QStringLiteral("clearEeprom"));
    for (QPushButton* button : {read, m_write, m_clear})
        button->setAutoDefault(false);
    auto* grid = new QGridLayout(content());
    grid->addWidget(new QLabel(tr("Hexadecimal:"), content()), 0, 0, Qt::AlignTop);
    grid->addWidget(m_hex, 0, 1, 1, 3);
    grid->addWidget(new QLabel(tr("Text:"), content()), 1, 0);
    grid->addWidget(m_text, 1, 1, 1, 3);
    grid->addWidget(m_size, 2, 1, 1, 3);
    grid->addWidget(read, 3, 1);
    grid->addWidget(m_write, 3, 2);
    grid->addWidget(m_clear, 3, 3);
    connect(read, &QPushButton::clicked, this, &CameraInfoEepromPage::onRead);
    connect(m_write, &QPushButton::clicked, this, &CameraInfoEepromPage::onWrite);
    connect(m_clear, &QPushButton::clicked, this, &CameraInfoEepromPage::onClear);
    connect(m_hex, &QPlainTextEdit::textChanged, this, &CameraInfoEepromPage::onHexEdited);
    connect(m_text, &QLineEdit::textEdited, this, &CameraInfoEepromPage::onTextEdited);
}

Result CameraInfoEepromPage::load()
{
    QByteArray bytes;
    const Result result = UserEeprom::read(handle(), &bytes);
    if (result.isSuccess())
        show(bytes);
    return loaded(result);
}

void CameraInfoEepromPage::show(const QByteArray& bytes)
{
    // Trailing zero bytes are the area's padding.
    QByteArray used = bytes;
    while (used.endsWith('\0'))
        used.chop(1);
    const QSignalBlocker blocker(m_hex);
    m_hex->setPlainText(UserEeprom::toHex(used));
    m_text->setText(UserEeprom::toText(used));
    m_size->setText(tr("%1 of %2 bytes used").arg(used.size()).arg(m_areaSize));
}

void CameraInfoEepromPage::onHexEdited()
{
    QByteArray bytes;
    if (!UserEeprom::fromHex(m_hex->toPlainText(), &bytes).isSuccess()) {
        m_size->setText(tr("The hexadecimal field holds no valid bytes."));
        return;
    }
    m_text->setText(UserEeprom::toText(bytes));
    m_size->setText(tr("%1 of %2 bytes used").arg(bytes.size()).arg(m_areaSize));
}

void CameraInfoEepromPage::onTextEdited(const QString& text)
{
    QByteArray bytes;
    if (!UserEeprom::fromText(text, &bytes).isSuccess()) {
        m_size->setText(tr("The text may hold printable ASCII characters only."));
        return;
    }
    const QSignalBlocker blocker(m_hex);
    m_hex->setPlainText(UserEeprom::toHex(bytes));
    m_size->setText(tr("%1 of %2 bytes used").arg(bytes.size()).arg(m_areaSize));
}

void CameraInfoEepromPage::onRead()
{
    QByteArray bytes;
    if (report(UserEeprom::read(handle(), &bytes)))
        show(bytes);
}

void CameraInfoEepromPage::onWrite()
{
    QByteArray bytes;
    if (report(UserEeprom::fromHex(m_hex->toPlainText(), &bytes)))
        write(bytes);
}

void CameraInfoEepromPage::onClear()
{
    write(QByteArray());
}

void CameraInfoEepromPage::write(const QByteArray& bytes)
{
    if (!report(UserEeprom::write(handle(), bytes, m_areaSize), m_write))
        return;
    onRead();
}
