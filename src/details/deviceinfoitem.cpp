#include "details/deviceinfoitem.h"

DeviceInfoItem* DeviceInfoItem::appendChild(const QString& label, ValueFunction value)
{
    auto item = std::make_unique<DeviceInfoItem>();
    item->m_label = label;
    item->m_read = std::move(value);
    item->m_parent = this;
    item->m_row = childCount();
    m_children.push_back(std::move(item));
    return m_children.back().get();
}

void DeviceInfoItem::removeChildren()
{
    m_children.clear();
}

DeviceInfoItem* DeviceInfoItem::child(int row) const
{
    return row >= 0 && row < childCount() ? m_children[std::size_t(row)].get() : nullptr;
}

void DeviceInfoItem::readValues(const Camera& camera)
{
    if (m_read)
        m_value = m_read(camera);
    for (const std::unique_ptr<DeviceInfoItem>& item : m_children)
        item->readValues(camera);
}
