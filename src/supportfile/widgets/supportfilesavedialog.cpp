#include "supportfile/widgets/supportfilesavedialog.h"

#include <QCheckBox>
#include <QGridLayout>

SupportFileSaveDialog::SupportFileSaveDialog(QWidget* parent)
    : QFileDialog(parent, tr("Save support file"), QString(), tr("Support file (*.bin)"))
{
    setObjectName(QStringLiteral("supportFileSaveDialog"));
    // The check box needs the dialog's own widgets.
    setOption(QFileDialog::DontUseNativeDialog);
    setAcceptMode(QFileDialog::AcceptSave);
    m_redact = new QCheckBox(tr("Replace serial numbers, MAC addresses and the host name by pseudonyms"), this);
    m_redact->setObjectName(QStringLiteral("redact"));
    if (auto* grid = qobject_cast<QGridLayout*>(layout()))
        grid->addWidget(m_redact, grid->rowCount(), 0, 1, grid->columnCount());
}

std::optional<SupportFileSaveDialog::Answer> SupportFileSaveDialog::ask(QWidget* parent)
{
    SupportFileSaveDialog dialog(parent);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().value(0).isEmpty())
        return std::nullopt;
    return Answer{dialog.selectedFiles().value(0), dialog.m_redact->isChecked()};
}
