#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>

// One answer line of a camera's serial interface to the identification query
// "ID?": "ID <model>,<serial>,<camera ID>", on the broadcast port one such
// entry per camera separated by ";" ("ID" alone for none), or "ERR <text>".
struct ComPortAnswer
{
    Q_DECLARE_TR_FUNCTIONS(ComPortAnswer)

public:
    enum class Kind { Identification, Error, Garbage };

    struct Identity
    {
        QString model;
        QString serialNumber;
        quint32 cameraId = 0;
    };

    static constexpr char query[] = "ID?\r\n";

    // The line without its line end.
    static ComPortAnswer parse(const QByteArray& line);

    // The cameras that answered, one per line; the error; or the line as it came.
    QString text() const;

    Kind kind = Kind::Garbage;
    QList<Identity> cameras;
    QString raw;
};
