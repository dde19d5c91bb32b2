#include "details/widgets/deviceinfoview.h"

#include "details/deviceinfomodel.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>

DeviceInfoView::DeviceInfoView(QWidget* parent)
    : QTreeView(parent)
    , m_model(new DeviceInfoModel(this))
    , m_copyAction(new QAction(this))
{
    setObjectName(QStringLiteral("deviceInfoView"));
    m_copyAction->setObjectName(QStringLiteral("copyItemValuesAction"));
    setModel(m_model);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    retranslate();

    connect(this, &QWidget::customContextMenuRequested, this, &DeviceInfoView::onCustomContextMenu);
    connect(m_copyAction, &QAction::triggered, this, &DeviceInfoView::copyValues);
    connect(m_model, &DeviceInfoModel::updateNeeded, this, &DeviceInfoView::updateNeeded);
    connect(m_model, &QAbstractItemModel::modelReset, this, &DeviceInfoView::showBuiltTree);
    // Rows opened later may hold longer labels.
    connect(this, &QTreeView::expanded, this, [this] {
        resizeColumnToContents(0);
        updateGeometry();
    });
}

void DeviceInfoView::Update(const Camera* pCamera, bool force_reset)
{
    m_model->Update(pCamera, force_reset);
}

void DeviceInfoView::UpdateUsbTopology()
{
    m_model->UpdateUSBTopology();
}

QSize DeviceInfoView::sizeHint() const
{
    // Labels three levels deep of about 28 characters, values of about 24.
    const int typicalWidth = 3 * indentation() + 52 * fontMetrics().averageCharWidth();
    int contentsWidth = 0;
    for (int column = 0; column < header()->count(); ++column)
        contentsWidth += std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
    const int frame = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    return {frame + std::max(typicalWidth, contentsWidth), QTreeView::sizeHint().height()};
}

void DeviceInfoView::onCustomContextMenu(const QPoint& pos)
{
    m_copyAction->setEnabled(selectionModel()->hasSelection());
    QMenu menu(this);
    menu.addAction(m_copyAction);
    menu.exec(viewport()->mapToGlobal(pos));
}

void DeviceInfoView::copyValues()
{
    QModelIndexList indexes = selectionModel()->selectedIndexes();
    if (indexes.isEmpty())
        return;
    std::sort(indexes.begin(), indexes.end());
    QString text;
    for (int i = 0; i < indexes.size(); ++i) {
        if (i > 0)
            text += indexes.at(i).row() == indexes.at(i - 1).row() ? QLatin1Char('\t') : QLatin1Char('\n');
        text += indexes.at(i).data().toString();
    }
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void DeviceInfoView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        // The rows' labels were translated when the tree was built.
        emit updateNeeded(true);
    }
    QTreeView::changeEvent(event);
}

void DeviceInfoView::retranslate()
{
    m_copyAction->setText(tr("Copy item values"));
}

void DeviceInfoView::showBuiltTree()
{
    expandAsBuilt(QModelIndex());
    resizeColumnToContents(0);
    updateGeometry(); // the size hint follows the rows
}

void DeviceInfoView::expandAsBuilt(const QModelIndex& parent)
{
    for (int row = 0; row < m_model->rowCount(parent); ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        if (!m_model->hasChildren(index) || !index.data(DeviceInfoModel::expandedAtFirstRole).toBool())
            continue;
        expand(index);
        expandAsBuilt(index);
    }
}
