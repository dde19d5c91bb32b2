#pragma once

// Cameras with chosen device information, and rows of the details tree
// addressed by their labels.

#include "camera/camera.h"

#include <QAbstractItemModel>
#include <QStringList>

#include <functional>
#include <memory>

namespace DeviceInfoTestSupport {

using Record = pv_ExtendedDeviceInformation;
using Tweak = std::function<void(Record&)>;

template <std::size_t N>
void setText(pv_char16 (&field)[N], const QString& text)
{
    std::fill(std::begin(field), std::end(field), pv_char16(0));
    const int length = std::min(text.size(), int(N) - 1);
    for (int i = 0; i < length; ++i)
        field[i] = text.at(i).unicode();
}

// The API's address word: first octet in the lowest byte.
inline quint32 ipWord(quint8 a, quint8 b, quint8 c, quint8 d)
{
    return quint32(a) | quint32(b) << 8 | quint32(c) << 16 | quint32(d) << 24;
}

inline Camera makeCamera(quint32 deviceId, quint8 typeCode, quint32 cameraId, const QString& serial,
                     const Tweak& tweak = {})
{
    auto record = std::make_unique<Record>();
    record->deviceId = deviceId;
    record->typeCode = typeCode;
    record->cameraId = cameraId;
    setText(record->serialNumber, serial);
    if (tweak)
        tweak(*record);
    return Camera(*record);
}

inline Camera gige(const Tweak& tweak = {})
{
    return makeCamera(1000, 138, 10, QStringLiteral("5201000010"), tweak);
}

inline Camera usb(const Tweak& tweak = {})
{
    return makeCamera(0, 98, 1, QStringLiteral("4102000001"), tweak);
}

// The row reached by following labels from the top; invalid when one is missing.
inline QModelIndex rowAt(const QAbstractItemModel& model, const QStringList& path, int column = 0)
{
    QModelIndex parent;
    for (const QString& label : path) {
        QModelIndex found;
        for (int row = 0; row < model.rowCount(parent) && !found.isValid(); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            if (index.data().toString() == label)
                found = index;
        }
        if (!found.isValid())
            return QModelIndex();
        parent = found;
    }
    return parent.sibling(parent.row(), column);
}

inline QStringList childLabels(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList labels;
    for (int row = 0; row < model.rowCount(parent); ++row)
        labels << model.index(row, 0, parent).data().toString();
    return labels;
}

} // namespace DeviceInfoTestSupport

Q_DECLARE_METATYPE(DeviceInfoTestSupport::Tweak)
