#pragma once

#include "dialogs/adapterstatisticssource.h"

#include <QAbstractTableModel>

#include <memory>

// The counters of the adapter that serves a camera, with their change since
// the first reading. Counters whose growth means lost images (dropped,
// missed, FIFO overruns, CRC errors) are marked once they have grown.
class AdapterStatisticsModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AdapterStatisticsModel)

public:
    enum Column { NameColumn, ValueColumn, ChangeColumn, ColumnCount };
    // bool: a lost-image counter that has grown
    static constexpr int LostImagesRole = Qt::UserRole + 1;

    explicit AdapterStatisticsModel(std::unique_ptr<AdapterStatisticsSource> source, QObject* parent = nullptr);
    ~AdapterStatisticsModel() override;

    // Reads the counters again; false when the source gave none.
    bool refresh();
    bool hasReading() const { return !m_rows.isEmpty(); }
    static bool isLostImageCounter(const QString& name);
    // Tab-separated lines with a header, for the clipboard.
    QString text() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        AdapterCounter counter;
        quint64 baseline = 0;
        bool lostImages = false;

        quint64 change() const { return counter.value >= baseline ? counter.value - baseline : counter.value; }
        bool grewLostImages() const { return lostImages && change() > 0; }
    };
    static QString displayName(const AdapterCounter& counter);
    void take(const AdapterCounters& counters);

    std::unique_ptr<AdapterStatisticsSource> m_source;
    QList<Row> m_rows;
};
