#pragma once

#include "common/result.h"

#include <cirro_api.h>

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>

// One stored parameter set of a camera: the model it belongs to and its
// named values, in the camera's order.
struct ParameterSet
{
    QString model;
    QList<QPair<QString, qint32>> values;

    bool operator==(const ParameterSet& other) const { return model == other.model && values == other.values; }
    bool operator!=(const ParameterSet& other) const { return !(*this == other); }

    static ParameterSet fromBlock(const pv_ParameterSet& block);
    // False when the set does not fit the block (too many values, long names).
    bool toBlock(pv_ParameterSet* block) const;
};

// The camera's parameter sets: factory (read-only), user set 1 and 2, and
// the set it starts with. Writes are confirmed by reading back.
class ParameterSets final
{
    Q_DECLARE_TR_FUNCTIONS(ParameterSets)

public:
    static QString setName(quint32 index);

    static Result read(quint32 handle, quint32 index, ParameterSet* set);
    static Result write(quint32 handle, quint32 index, const ParameterSet& set);
    static Result startupSet(quint32 handle, quint32* index);
    static Result setStartupSet(quint32 handle, quint32 index);
    static Result saveCurrent(quint32 handle, quint32 index);
    // Current settings and start-up set back to factory; confirmed by the start-up set.
    static Result resetToFactory(quint32 handle);
};
