#include "sysinfo/widgets/aboutpage.h"

#include "sysinfo/widgets/infotreeview.h"

#include <QLabel>
#include <QTextBrowser>
#include <QVBoxLayout>

AboutPage::AboutPage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("about"));
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("aboutTitle"));
    m_title->setTextFormat(Qt::RichText);
    m_facts = new InfoTreeView(this);
    m_facts->setObjectName(QStringLiteral("aboutFacts"));
    m_facts->setRootIsDecorated(false);
    m_licences = new QTextBrowser(this);
    m_licences->setObjectName(QStringLiteral("licences"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_facts, 1);
    layout->addWidget(new QLabel(tr("Licences of the libraries this program uses:"), this));
    layout->addWidget(m_licences, 1);
}

void AboutPage::show(const AboutInformation& about)
{
    m_title->setText(QStringLiteral("<h2>%1</h2>%2")
                         .arg(about.productName.toHtmlEscaped(),
                              tr("Version %1").arg(about.applicationVersion).toHtmlEscaped()));
    m_facts->show(about.facts());
    QString html;
    for (const AboutInformation::LicenceNotice& notice : about.licences)
        html += QStringLiteral("<h4>%1 — %2</h4><p>%3</p>")
                    .arg(notice.component.toHtmlEscaped(), notice.licence.toHtmlEscaped(),
                         notice.notice.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")));
    m_licences->setHtml(html);
}
