#include "dialogs/widgets/camerainfopage.h"

#include "dialogs/cameracall.h"

#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>

CameraInfoPage::CameraInfoPage(quint32 handle, QWidget* parent)
    : QWidget(parent)
    , m_handle(handle)
{
    auto* layout = new QVBoxLayout(this);
    m_note = new QLabel(this);
    m_note->setObjectName(QStringLiteral("unsupportedNote"));
    m_note->setWordWrap(true);
    m_note->hide();
    m_content = new QWidget(this);
    layout->addWidget(m_note);
    layout->addWidget(m_content, 1);
}

bool CameraInfoPage::isSupported() const
{
    return m_content->isEnabled();
}

void CameraInfoPage::markUnsupported(QWidget* control)
{
    (control ? control : m_content)->setEnabled(false);
    const QString text = control ? tr("Some functions of this page are %1.") : tr("This page is %1.");
    m_note->setText(QStringLiteral("<i>%1</i>").arg(text.arg(CameraCall::unsupportedText())));
    m_note->show();
}

bool CameraInfoPage::report(const Result& result, QWidget* control)
{
    if (result.isSuccess())
        return true;
    if (CameraCall::isUnsupported(result.code()))
        markUnsupported(control);
    QMessageBox::critical(this, title(), result.text());
    return false;
}

Result CameraInfoPage::loaded(const Result& result)
{
    if (CameraCall::isUnsupported(result.code())) {
        markUnsupported();
        return {};
    }
    return result;
}
