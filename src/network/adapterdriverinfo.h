#pragma once

#include <QString>

// What the system tells about the driver of one network adapter; texts the
// system does not know stay empty.
struct AdapterDriverInfo
{
    QString driver;
    QString version;
    QString date;
    QString busInfo;
};
