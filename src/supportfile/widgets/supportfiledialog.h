#pragma once

#include "common/result.h"
#include "supportfile/supportfiletree.h"

#include <QDialog>
#include <QString>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
struct SupportFileRow;

// Shows a support file as a two-column tree: its cameras, drivers, system,
// network adapters and USB controllers. A damaged file shows what could be
// read and says where reading stopped.
class SupportFileDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SupportFileDialog)

public:
    enum class ExportFormat { Ini, Json };

    SupportFileDialog(const QString& path, QWidget* parent = nullptr);
    ~SupportFileDialog() override;

    QTreeWidget* tree() const { return m_tree; }
    QString notice() const;
    Result exportTo(const QString& path, ExportFormat format) const;

private:
    void buildTree();
    void addRows(QTreeWidgetItem* parent, const SupportFileRow& row);
    void askAndExport(ExportFormat format);

    QString m_path;
    SupportFileTree m_content;
    bool m_partial = false;
    QLabel* m_notice = nullptr;
    QTreeWidget* m_tree = nullptr;
};
