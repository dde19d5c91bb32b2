#pragma once

#include "sysinfo/infonode.h"

#include <QTreeWidget>

// Shows the entries of one information page as a two-column tree: label and
// value, everything expanded.
class InfoTreeView final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit InfoTreeView(QWidget* parent = nullptr);

    // The root's children become the top-level rows; the root itself is the
    // page and is not shown.
    void show(const InfoNode& page);
    void showMessage(const QString& message);

private:
    static void addChildren(QTreeWidgetItem* parent, const InfoNode& node);
};
