#include "supportfile/widgets/supportfiledialog.h"

#include "supportfile/supportfileexport.h"
#include "supportfile/supportfileoutline.h"
#include "supportfile/supportfilereader.h"
#include "supportfile/supportfileredaction.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QTreeWidget>
#include <QVBoxLayout>

SupportFileDialog::SupportFileDialog(const QString& path, QWidget* parent)
    : QDialog(parent)
    , m_path(path)
{
    setObjectName(QStringLiteral("supportFileDialog"));
    setWindowTitle(tr("Support file %1").arg(QFileInfo(path).fileName()));
    SupportFileReader::Result read = SupportFileReader::read(path);
    m_content = std::move(read.tree);
    m_partial = read.partial;

    auto* layout = new QVBoxLayout(this);
    m_notice = new QLabel(this);
    m_notice->setObjectName(QStringLiteral("notice"));
    m_notice->setWordWrap(true);
    QStringList notices;
    if (!read.error.isEmpty())
        notices << read.error + (read.partial ? QLatin1Char(' ') + tr("Shown is what could be read before.") : QString());
    if (SupportFileRedaction::isRedacted(m_content))
        notices << tr("Serial numbers, MAC addresses and the host name in this file are pseudonyms.");
    m_notice->setText(notices.join(QLatin1Char('\n')));
    m_notice->setStyleSheet(read.error.isEmpty() ? QString() : QStringLiteral("color: #c00000;"));
    m_notice->setVisible(!notices.isEmpty());
    layout->addWidget(m_notice);

    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("supportFileTree"));
    m_tree->setColumnCount(2);
    m_tree->setHeaderLabels({tr("Key"), tr("Value")});
    m_tree->setColumnWidth(0, 300);
    m_tree->setColumnWidth(1, 200);
    layout->addWidget(m_tree);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    QPushButton* ini = buttons->addButton(tr("Export as INI"), QDialogButtonBox::ActionRole);
    ini->setObjectName(QStringLiteral("exportIni"));
    QPushButton* json = buttons->addButton(tr("Export as JSON"), QDialogButtonBox::ActionRole);
    json->setObjectName(QStringLiteral("exportJson"));
    ini->setEnabled(!m_content.isEmpty());
    json->setEnabled(!m_content.isEmpty());
    connect(ini, &QPushButton::clicked, this, [this] { askAndExport(ExportFormat::Ini); });
    connect(json, &QPushButton::clicked, this, [this] { askAndExport(ExportFormat::Json); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    buildTree();
    resize(640, 720);
}

SupportFileDialog::~SupportFileDialog() = default;

QString SupportFileDialog::notice() const
{
    return m_notice->isVisible() || !m_notice->text().isEmpty() ? m_notice->text() : QString();
}

void SupportFileDialog::buildTree()
{
    if (m_content.isEmpty())
        return;
    for (const SupportFileRow& group : SupportFileOutline::build(m_content, m_partial)) {
        auto* item = new QTreeWidgetItem(m_tree, {group.label, group.value});
        for (const SupportFileRow& row : group.children)
            addRows(item, row);
        item->setExpanded(true);
    }
}

void SupportFileDialog::addRows(QTreeWidgetItem* parent, const SupportFileRow& row)
{
    auto* item = new QTreeWidgetItem(parent, {row.label, row.value});
    item->setToolTip(1, row.value);
    if (row.warning)
        item->setForeground(1, QColor(0xc0, 0, 0));
    for (const SupportFileRow& child : row.children)
        addRows(item, child);
}

Result SupportFileDialog::exportTo(const QString& path, ExportFormat format) const
{
    const QByteArray content =
        format == ExportFormat::Ini ? SupportFileExport::toIni(m_content) : SupportFileExport::toJson(m_content);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return Result(HostError::SystemCallFailed, tr("%1 can't be written: %2.").arg(path, file.errorString()));
    return Result();
}

void SupportFileDialog::askAndExport(ExportFormat format)
{
    const bool ini = format == ExportFormat::Ini;
    const QFileInfo source(m_path);
    const QString suggested = source.dir().filePath(source.completeBaseName() + (ini ? ".ini" : ".json"));
    const QString path = QFileDialog::getSaveFileName(this, ini ? tr("Export as INI") : tr("Export as JSON"),
                                                      suggested, ini ? tr("INI file (*.ini)") : tr("JSON file (*.json)"));
    if (path.isEmpty())
        return;
    const Result result = exportTo(path, format);
    if (!result.isSuccess())
        QMessageBox::critical(this, ini ? tr("Export as INI") : tr("Export as JSON"), result.text());
}
