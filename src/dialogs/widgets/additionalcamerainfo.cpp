#include "dialogs/widgets/additionalcamerainfo.h"

#include "dialogs/adapterstatisticsmodel.h"
#include "dialogs/openedcamera.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

AdditionalCameraInfo::AdditionalCameraInfo(const Camera& camera, QWidget* parent,
                                           std::unique_ptr<AdapterStatisticsSource> statistics)
    : QDialog(parent)
    , m_camera(camera)
{
    setObjectName(QStringLiteral("additionalCameraInfo"));
    setWindowTitle(tr("Additional Camera Info"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    readRevisionRecord();
    auto* header = new QLabel(tr("<b>%1</b> &nbsp; serial number %2, device ID %3")
                                  .arg(camera.model().toHtmlEscaped(), camera.serialNumber().toHtmlEscaped())
                                  .arg(camera.deviceId()),
                              this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(buildRevisionGroup(), 1);
    if (camera.kind() == Camera::Kind::Eth) {
        if (!statistics)
            statistics = AdapterStatisticsSource::forAdapter(camera.adapterName());
        layout->addWidget(buildStatisticsGroup(std::move(statistics)), 1);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* copy = buttons->addButton(tr("Copy as text"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copyAsText"));
    connect(copy, &QPushButton::clicked, this, &AdditionalCameraInfo::onCopy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(660, camera.kind() == Camera::Kind::Eth ? 860 : 540);
}

AdditionalCameraInfo::~AdditionalCameraInfo() = default;

void AdditionalCameraInfo::readRevisionRecord()
{
    Result result;
    const std::unique_ptr<OpenedCamera> opened = OpenedCamera::open(m_camera.deviceId(), &result);
    if (opened)
        result = RevisionRecord::read(opened->handle(), &m_revision);
    m_revisionFailure = result.text();
}

QWidget* AdditionalCameraInfo::buildRevisionGroup()
{
    auto* group = new QGroupBox(tr("Revision record"), this);
    auto* layout = new QVBoxLayout(group);
    if (!m_revisionFailure.isEmpty()) {
        auto* failure = new QLabel(m_revisionFailure, group);
        failure->setObjectName(QStringLiteral("revisionFailure"));
        failure->setWordWrap(true);
        layout->addWidget(failure);
    }
    m_revisionView = new QTreeWidget(group);
    m_revisionView->setObjectName(QStringLiteral("revisionRecord"));
    m_revisionView->setRootIsDecorated(false);
    m_revisionView->setHeaderLabels({tr("Field"), tr("Value")});
    for (const RevisionRecord::Field& field : m_revision.fields()) {
        auto* item = new QTreeWidgetItem(m_revisionView, {field.label, field.value});
        item->setToolTip(0, QLatin1String(field.key));
    }
    m_revisionView->resizeColumnToContents(0);
    layout->addWidget(m_revisionView);
    return group;
}

QWidget* AdditionalCameraInfo::buildStatisticsGroup(std::unique_ptr<AdapterStatisticsSource> statistics)
{
    auto* group = new QGroupBox(tr("Statistics of the network adapter %1").arg(m_camera.adapterName()), this);
    m_statistics = new AdapterStatisticsModel(std::move(statistics), this);
    m_statisticsNote = new QLabel(group);
    m_statisticsNote->setObjectName(QStringLiteral("statisticsNote"));
    m_statisticsNote->setWordWrap(true);
    m_statisticsView = new QTableView(group);
    m_statisticsView->setObjectName(QStringLiteral("adapterStatistics"));
    m_statisticsView->setModel(m_statistics);
    m_statisticsView->verticalHeader()->hide();
    m_statisticsView->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_statisticsView->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_statisticsView->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_statisticsView->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_statisticsNote);
    layout->addWidget(m_statisticsView);
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &AdditionalCameraInfo::onRefresh);
    m_timer->start(refreshIntervalMs);
    onRefresh();
    return group;
}

void AdditionalCameraInfo::onRefresh()
{
    if (!m_statistics)
        return;
    const bool read = m_statistics->refresh();
    m_statisticsNote->setText(
        read ? tr("Changes since this dialog opened; a red row is a counter of lost image data that has grown.")
             : tr("The network adapter %1 gives no statistics.").arg(m_camera.adapterName()));
}

QString AdditionalCameraInfo::text() const
{
    QStringList lines{windowTitle(), QString()};
    if (!m_revisionFailure.isEmpty())
        lines << m_revisionFailure;
    for (const RevisionRecord::Field& field : m_revision.fields())
        lines << field.label + QStringLiteral(": ") + field.value;
    if (m_statistics) {
        lines << QString() << tr("Network adapter %1").arg(m_camera.adapterName());
        lines << (m_statistics->hasReading() ? m_statistics->text() : m_statisticsNote->text());
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void AdditionalCameraInfo::onCopy()
{
    QApplication::clipboard()->setText(text());
}
