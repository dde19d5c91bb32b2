#include "sysinfo/widgets/generalinfodlg.h"

#include "common/widgets/tabbeddialogstate.h"
#include "sysinfo/drivercomponentinventory.h"
#include "sysinfo/widgets/aboutpage.h"
#include "sysinfo/widgets/infotreeview.h"
#include "sysinfo/widgets/updatespage.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtConcurrent>

namespace {

const QString settingsGroup = QStringLiteral("generalInfo");

} // namespace

GeneralInfoDlg::GeneralInfoDlg(const QString& language, const ServiceManager& services, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("generalInfo"));
    setWindowTitle(tr("General information"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_pages = new QTabWidget(this);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_about = new AboutPage(m_pages);
    m_pages->addTab(m_about, tr("About"));
    m_drivers = addTreePage(QStringLiteral("drivers"), tr("Drivers"));
    m_usb = addTreePage(QStringLiteral("usbControllers"), tr("USB controllers"));
    m_adapters = addTreePage(QStringLiteral("networkAdapters"), tr("Network adapters"));
    m_updates = new UpdatesPage(language, QVersionNumber::fromString(QCoreApplication::applicationVersion()), m_pages);
    m_pages->addTab(m_updates, tr("Updates"));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* copy = buttons->addButton(tr("Copy to clipboard"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copyToClipboard"));
    m_copied = new QLabel(this);
    m_copied->setObjectName(QStringLiteral("copied"));
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_copied, 1);
    buttonRow->addWidget(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addLayout(buttonRow);
    connect(copy, &QPushButton::clicked, this, &GeneralInfoDlg::onCopy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, [this] { TabbedDialogState::save(*this, *m_pages, settingsGroup); });

    resize(800, 580);
    TabbedDialogState::restore(*this, *m_pages, settingsGroup);

    m_info.about = AboutInformation::collect();
    m_about->show(m_info.about);
    m_info.drivers = DriverComponentInventory::collect(services);
    m_drivers->show(GeneralInformation::driversPage(m_info.drivers));
    for (InfoTreeView* page : {m_usb, m_adapters})
        page->showMessage(tr("Reading …"));
    connect(&m_reading, &QFutureWatcher<GeneralInformation>::finished, this, &GeneralInfoDlg::onHostRead);
    m_reading.setFuture(QtConcurrent::run(&GeneralInformation::gatherHost));
}

GeneralInfoDlg::~GeneralInfoDlg()
{
    m_reading.waitForFinished();
}

InfoTreeView* GeneralInfoDlg::addTreePage(const QString& objectName, const QString& title)
{
    auto* page = new InfoTreeView(m_pages);
    page->setObjectName(objectName);
    m_pages->addTab(page, title);
    return page;
}

void GeneralInfoDlg::onHostRead()
{
    const GeneralInformation host = m_reading.result();
    m_info.topology = host.topology;
    m_info.adapters = host.adapters;
    m_info.adapterStatus = host.adapterStatus;
    m_info.hostRead = true;
    m_usb->show(GeneralInformation::usbControllersPage(m_info.topology.get()));
    m_adapters->show(GeneralInformation::networkAdaptersPage(m_info.adapters, m_info.adapterStatus));
}

QString GeneralInfoDlg::text() const
{
    QList<InfoNode> pages = m_info.pages();
    pages << m_updates->outline();
    QString result;
    for (const InfoNode& page : pages)
        result += page.text() + QLatin1Char('\n');
    return result;
}

void GeneralInfoDlg::onCopy()
{
    QApplication::clipboard()->setText(text());
    m_copied->setText(tr("Copied to the clipboard."));
}
