#include "dialogs/adapterstatisticsmodel.h"

#include <QColor>
#include <algorithm>

namespace {

const QColor lostImagesBackground(255, 205, 205);

bool sameCounter(const AdapterCounter& a, const AdapterCounter& b)
{
    return a.name == b.name && a.fromDriver == b.fromDriver;
}

} // namespace

AdapterStatisticsModel::AdapterStatisticsModel(std::unique_ptr<AdapterStatisticsSource> source, QObject* parent)
    : QAbstractTableModel(parent)
    , m_source(std::move(source))
{
}

AdapterStatisticsModel::~AdapterStatisticsModel() = default;

bool AdapterStatisticsModel::isLostImageCounter(const QString& name)
{
    const QString lower = name.toLower();
    for (const char* word : {"drop", "missed", "fifo", "crc", "no_buffer"}) {
        if (lower.contains(QLatin1String(word)))
            return true;
    }
    return false;
}

bool AdapterStatisticsModel::refresh()
{
    const std::optional<AdapterCounters> counters = m_source ? m_source->read() : std::nullopt;
    if (!counters)
        return false;
    take(*counters);
    return true;
}

void AdapterStatisticsModel::take(const AdapterCounters& counters)
{
    const bool sameRows = counters.size() == m_rows.size()
                          && std::equal(counters.begin(), counters.end(), m_rows.begin(),
                                        [](const AdapterCounter& c, const Row& row) { return sameCounter(c, row.counter); });
    if (sameRows) {
        for (int i = 0; i < counters.size(); ++i)
            m_rows[i].counter.value = counters.at(i).value;
        if (!m_rows.isEmpty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
        return;
    }
    // A counter seen for the first time starts its change from now.
    QList<Row> rows;
    for (const AdapterCounter& counter : counters) {
        auto known = std::find_if(m_rows.begin(), m_rows.end(),
                                  [&](const Row& row) { return sameCounter(row.counter, counter); });
        const quint64 baseline = known != m_rows.end() ? known->baseline : counter.value;
        rows.append({counter, baseline, isLostImageCounter(counter.name)});
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

QString AdapterStatisticsModel::displayName(const AdapterCounter& counter)
{
    return counter.fromDriver ? tr("driver: %1").arg(counter.name) : counter.name;
}

int AdapterStatisticsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int AdapterStatisticsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant AdapterStatisticsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == NameColumn)
            return displayName(row.counter);
        if (index.column() == ValueColumn)
            return QString::number(row.counter.value);
        return row.change() > 0 ? QStringLiteral("+%1").arg(row.change()) : QStringLiteral("0");
    case Qt::TextAlignmentRole:
        return index.column() == NameColumn ? int(Qt::AlignLeft | Qt::AlignVCenter) : int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return row.grewLostImages() ? QVariant(lostImagesBackground) : QVariant();
    case Qt::ToolTipRole:
        return row.grewLostImages() ? tr("This counter grows when the adapter loses image data.") : QVariant();
    case LostImagesRole:
        return row.grewLostImages();
    default:
        return {};
    }
}

QVariant AdapterStatisticsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn: return tr("Counter");
    case ValueColumn: return tr("Value");
    case ChangeColumn: return tr("Change since opened");
    default: return {};
    }
}

QString AdapterStatisticsModel::text() const
{
    QStringList lines{headerData(NameColumn, Qt::Horizontal).toString() + QLatin1Char('\t')
                      + headerData(ValueColumn, Qt::Horizontal).toString() + QLatin1Char('\t')
                      + headerData(ChangeColumn, Qt::Horizontal).toString()};
    for (int r = 0; r < rowCount(); ++r) {
        QStringList cells;
        for (int c = 0; c < ColumnCount; ++c)
            cells << data(index(r, c)).toString();
        if (m_rows.at(r).grewLostImages())
            cells << tr("(lost images)");
        lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}
