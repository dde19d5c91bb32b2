#pragma once

#include "common/result.h"

#include <QCoreApplication>
#include <QString>

// A virtual COM port as the driver reports it.
struct ComPortInfo
{
    bool installed = false;
    quint32 number = 0;
    QString devicePath;
};

// The camera API's COM port commands, by device ID. Every write is confirmed
// by reading back; every failure names the driver's code, and a library that
// does not know a command says so ("not supported by the installed driver").
class ComPortAccess final
{
    Q_DECLARE_TR_FUNCTIONS(ComPortAccess)

public:
    // Whether the driver's COM port support is installed. A library that does
    // not know the question, or fails to answer it, has none.
    static bool supportInstalled();

    static Result port(quint32 deviceId, ComPortInfo* info);
    // Refuses a number outside the API's range before asking the driver.
    static Result install(quint32 deviceId, quint32 number);
    static Result remove(quint32 deviceId);

    // The number stored in the camera, which the device information shows as
    // its offset from 100.
    static Result storedNumber(quint32 deviceId, quint32* number);
    static Result store(quint32 deviceId, quint32 number);

    static Result broadcastPort(ComPortInfo* info);
    static Result setBroadcast(bool on);

    static bool isInRange(quint32 number);
    static Result outOfRange(quint32 number);
};
