#include "sysinfo/widgets/updatespage.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

UpdatesPage::UpdatesPage(QString language, QVersionNumber installed, QWidget* parent)
    : QWidget(parent)
    , m_language(std::move(language))
    , m_installed(std::move(installed))
{
    setObjectName(QStringLiteral("updates"));
    m_address = new QLineEdit(UpdateCheck::storedAddress(), this);
    m_address->setObjectName(QStringLiteral("updateAddress"));
    m_address->setPlaceholderText(tr("https://… address of the update document"));
    m_checkButton = new QPushButton(tr("Check for updates"), this);
    m_checkButton->setObjectName(QStringLiteral("checkForUpdates"));
    m_result = new QLabel(tr("The program asks for updates only when you press \"Check for updates\"."), this);
    m_result->setObjectName(QStringLiteral("updateResult"));
    m_result->setWordWrap(true);
    m_result->setTextFormat(Qt::RichText);
    m_result->setOpenExternalLinks(true);
    m_notes = new QLabel(this);
    m_notes->setObjectName(QStringLiteral("updateNotes"));
    m_notes->setWordWrap(true);
    m_notes->setTextFormat(Qt::PlainText);

    auto* form = new QFormLayout;
    form->addRow(tr("Installed version:"), new QLabel(m_installed.toString(), this));
    form->addRow(tr("Update address:"), m_address);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_checkButton, 0, Qt::AlignLeft);
    layout->addWidget(m_result);
    layout->addWidget(m_notes);
    layout->addStretch(1);

    connect(m_checkButton, &QPushButton::clicked, this, &UpdatesPage::onCheckClicked);
    connect(&m_check, &UpdateCheck::finished, this, &UpdatesPage::onFinished);
}

void UpdatesPage::onCheckClicked()
{
    if (m_check.isRunning()) {
        m_check.cancel();
        return;
    }
    const QString address = m_address->text().trimmed();
    m_notes->clear();
    if (address.isEmpty()) {
        m_result->setText(tr("No update address is set. Enter the address of the update document that your "
                             "supplier gave you."));
        return;
    }
    UpdateCheck::storeAddress(address);
    m_result->setText(tr("Asking %1 …").arg(address.toHtmlEscaped()));
    showRunning(true);
    m_check.start(QUrl(address, QUrl::StrictMode), m_installed);
}

void UpdatesPage::onFinished(const UpdateCheckOutcome& outcome)
{
    showRunning(false);
    m_lastOutcome = outcome;
    QString text = outcome.message.toHtmlEscaped();
    if (outcome.kind == UpdateCheckOutcome::Kind::UpdateAvailable && outcome.document) {
        const QString page = outcome.document->downloadPage.toString(QUrl::FullyEncoded);
        text += QStringLiteral("<br><a href=\"%1\">%2</a>").arg(page.toHtmlEscaped(), tr("Open the download page"));
    }
    m_result->setText(text);
    m_notes->setText(outcome.document ? outcome.document->notesFor(m_language) : QString());
}

void UpdatesPage::showRunning(bool running)
{
    m_checkButton->setText(running ? tr("Cancel") : tr("Check for updates"));
    m_address->setEnabled(!running);
}

InfoNode UpdatesPage::outline() const
{
    InfoNode node(tr("Updates"));
    node.addIfKnown(tr("Installed version"), m_installed.toString())
        .addIfKnown(tr("Update address"), m_address->text().trimmed())
        .addIfKnown(tr("Last check"), m_lastOutcome ? m_lastOutcome->message : QString());
    if (m_lastOutcome && m_lastOutcome->document)
        node.addIfKnown(tr("Download page"), m_lastOutcome->document->downloadPage.toString());
    return node;
}
