#include "driver/tracefiletail.h"

#include <QFile>

namespace {

constexpr qint64 blockBytes = 64 * 1024;
// A file without line breaks is not read further back than this.
constexpr qint64 maxTailBytes = 4 * 1024 * 1024;

} // namespace

TraceFileTail::Lines TraceFileTail::read(const QString& file, const QString& rotatedFile, int maxLines)
{
    Lines tail;
    if (!QFile::exists(file) && !QFile::exists(rotatedFile)) {
        tail.result = Result(HostError::NotSupported, tr("There is no trace file %1 yet.").arg(file));
        return tail;
    }
    if (QFile::exists(file))
        tail.result = prependLastLines(file, maxLines, tail.lines);
    if (tail.result.isSuccess() && tail.lines.size() < maxLines && QFile::exists(rotatedFile))
        tail.result = prependLastLines(rotatedFile, maxLines - tail.lines.size(), tail.lines);
    return tail;
}

Result TraceFileTail::prependLastLines(const QString& path, int maxLines, QStringList& lines)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Result(HostError::PermissionDenied,
                      tr("The trace file %1 can't be read: %2").arg(path, file.errorString()));
    QByteArray tail;
    qint64 position = file.size();
    const qint64 stop = qMax<qint64>(0, position - maxTailBytes);
    // One line break more than lines wanted: the first piece may be a line's end only.
    while (position > stop && tail.count('\n') <= maxLines) {
        const qint64 length = qMin(blockBytes, position - stop);
        position -= length;
        if (!file.seek(position))
            return Result(HostError::SystemCallFailed,
                          tr("The trace file %1 can't be read: %2").arg(path, file.errorString()));
        tail.prepend(file.read(length));
    }
    QList<QByteArray> pieces = tail.split('\n');
    if (pieces.last().isEmpty())
        pieces.removeLast();
    if (position > 0 && !pieces.isEmpty())
        pieces.removeFirst();
    QStringList found;
    for (int i = qMax(0, pieces.size() - maxLines); i < pieces.size(); ++i)
        found.append(QString::fromUtf8(pieces.at(i)));
    lines = found + lines;
    return {};
}
