#pragma once

#include <QStringList>

// Camera models that the current driver generation no longer supports: the
// first USB 2 line, whose hardware the driver refuses above version 3.00.
namespace UnsupportedModels {

inline QStringList list()
{
    return {QStringLiteral("CR-U2-04M"), QStringLiteral("CR-U2-08M"), QStringLiteral("CR-U2-08C"),
            QStringLiteral("CR-U1-03M"), QStringLiteral("CR-U1-03C")};
}

} // namespace UnsupportedModels
