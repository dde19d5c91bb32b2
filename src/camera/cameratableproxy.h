#pragma once

#include <QSortFilterProxyModel>

// The sorting proxy between the camera list model and its table. Besides
// sorting it gives what only the table needs: numbers aligned to the right and
// tool tips that explain the columns and the abbreviations in the cells.
class CameraTableProxy final : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraTableProxy)

public:
    explicit CameraTableProxy(QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
};
