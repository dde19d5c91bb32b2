#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

class Camera;

// One row of the device details tree: a label, a function that reads the row's
// value from a camera record, and the value it read last. Rows without a
// function are groups and show no value.
class DeviceInfoItem final
{
public:
    using ValueFunction = std::function<QVariant(const Camera&)>;

    DeviceInfoItem() = default;
    DeviceInfoItem(const DeviceInfoItem&) = delete;
    DeviceInfoItem& operator=(const DeviceInfoItem&) = delete;

    DeviceInfoItem* appendChild(const QString& label, ValueFunction value = {});
    void removeChildren();

    const QString& label() const { return m_label; }
    const QVariant& value() const { return m_value; }
    DeviceInfoItem* parent() const { return m_parent; }
    DeviceInfoItem* child(int row) const;
    int childCount() const { return int(m_children.size()); }
    int row() const { return m_row; }

    // Whether a view opens the row when the tree has been built.
    bool expandedAtFirst() const { return m_expandedAtFirst; }
    void setExpandedAtFirst(bool expanded) { m_expandedAtFirst = expanded; }

    // Reads the values of this row and every row below it.
    void readValues(const Camera& camera);

private:
    QString m_label;
    ValueFunction m_read;
    QVariant m_value;
    DeviceInfoItem* m_parent = nullptr;
    int m_row = 0;
    bool m_expandedAtFirst = true;
    std::vector<std::unique_ptr<DeviceInfoItem>> m_children;
};
