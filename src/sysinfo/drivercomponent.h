#pragma once

#include <QList>
#include <QString>

// One installed part of the camera driver stack: the camera API library, a
// kernel module of a driver service or the service's unit.
struct DriverComponent
{
    enum class Kind { ApiLibrary, KernelModule, ServiceUnit };

    Kind kind = Kind::ApiLibrary;
    QString name;           // file or unit name, dots allowed: "libcirro_api.so.1.0"
    QString path;           // resolved file path; empty for a unit
    QString fileVersion;    // empty when the component carries none
    QString productVersion; // a service unit's state in words
    QString date;           // build date "M-D-YYYY" of a module; empty elsewhere
};

using DriverComponentList = QList<DriverComponent>;
