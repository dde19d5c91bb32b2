#pragma once

#include "common/result.h"

#include <QCoreApplication>
#include <QStringList>

// The last lines of a trace file that rotates: what is still missing comes
// from the end of the rotated file before it. Only the ends are read, however
// large the files are.
class TraceFileTail final
{
    Q_DECLARE_TR_FUNCTIONS(TraceFileTail)

public:
    struct Lines
    {
        Result result;
        QStringList lines; // oldest first
    };

    static Lines read(const QString& file, const QString& rotatedFile, int maxLines);

private:
    // Prepends up to maxLines lines from the end of path to lines.
    static Result prependLastLines(const QString& path, int maxLines, QStringList& lines);
};
