#include "camera/cameratableproxy.h"

#include "camera/cameracelltexts.h"
#include "camera/cameralistmodel.h"

namespace {

bool isNumberColumn(int column)
{
    return column == CameraListModel::CameraId || column == CameraListModel::DeviceId;
}

} // namespace

CameraTableProxy::CameraTableProxy(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(true);
}

QVariant CameraTableProxy::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::TextAlignmentRole && isNumberColumn(index.column()))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole) {
        const QVariant camera = index.data(CameraListModel::cameraRole);
        const QString tip = camera.isValid() ? CameraCellTexts::cellToolTip(camera.value<Camera>(), index.column())
                                             : QString();
        return tip.isEmpty() ? QVariant() : QVariant(tip);
    }
    return QSortFilterProxyModel::data(index, role);
}

QVariant CameraTableProxy::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal) {
        if (role == Qt::ToolTipRole) {
            const QString tip = CameraCellTexts::columnToolTip(section);
            return tip.isEmpty() ? QVariant() : QVariant(tip);
        }
        if (role == Qt::TextAlignmentRole && isNumberColumn(section))
            return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    return QSortFilterProxyModel::headerData(section, orientation, role);
}
