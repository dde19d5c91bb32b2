#include "sysinfo/widgets/infotreeview.h"

#include <QHeaderView>

InfoTreeView::InfoTreeView(QWidget* parent)
    : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderLabels({tr("Item"), tr("Value")});
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    header()->setStretchLastSection(true);
}

void InfoTreeView::show(const InfoNode& page)
{
    clear();
    for (const InfoNode& entry : page.children) {
        auto* item = new QTreeWidgetItem(this, {entry.label, entry.value});
        addChildren(item, entry);
    }
    if (page.children.isEmpty() && !page.value.isEmpty())
        new QTreeWidgetItem(this, {page.value});
    expandAll();
    resizeColumnToContents(0);
}

void InfoTreeView::showMessage(const QString& message)
{
    clear();
    new QTreeWidgetItem(this, {message});
}

void InfoTreeView::addChildren(QTreeWidgetItem* parent, const InfoNode& node)
{
    for (const InfoNode& child : node.children) {
        auto* item = new QTreeWidgetItem(parent, {child.label, child.value});
        item->setToolTip(1, child.value);
        addChildren(item, child);
    }
}
