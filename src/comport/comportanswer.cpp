#include "comport/comportanswer.h"

namespace {

bool parseIdentity(const QString& entry, ComPortAnswer::Identity& identity)
{
    const QStringList fields = entry.split(QLatin1Char(','));
    if (fields.size() != 3 || fields[0].trimmed().isEmpty())
        return false;
    bool ok = false;
    identity.cameraId = fields[2].toUInt(&ok);
    identity.model = fields[0];
    identity.serialNumber = fields[1];
    return ok;
}

} // namespace

ComPortAnswer ComPortAnswer::parse(const QByteArray& line)
{
    ComPortAnswer answer;
    answer.raw = QString::fromLatin1(line);
    if (line.startsWith("ERR ")) {
        answer.kind = Kind::Error;
        return answer;
    }
    if (line != "ID" && !line.startsWith("ID "))
        return answer;
    QList<Identity> cameras;
    for (const QString& entry : answer.raw.mid(3).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        Identity identity;
        if (!parseIdentity(entry, identity))
            return answer;
        cameras << identity;
    }
    answer.kind = Kind::Identification;
    answer.cameras = cameras;
    return answer;
}

QString ComPortAnswer::text() const
{
    switch (kind) {
    case Kind::Identification: {
        if (cameras.isEmpty())
            return tr("No camera answered.");
        QStringList lines;
        for (const Identity& camera : cameras)
            lines << tr("%1, serial number %2, camera ID %3").arg(camera.model, camera.serialNumber).arg(camera.cameraId);
        return lines.join(QLatin1Char('\n'));
    }
    case Kind::Error:
        return raw.mid(4);
    case Kind::Garbage:
        break;
    }
    return raw;
}
