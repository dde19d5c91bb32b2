#pragma once

#include "camera/camera.h"
#include "common/result.h"

#include <QCoreApplication>
#include <QList>

#include <memory>
#include <optional>

// Which COM port numbers the other listed cameras claim: the port installed
// for them (the driver refuses that number to anyone else) or the number
// stored in them (they would take it on the next host).
class ComPortNumbers final
{
    Q_DECLARE_TR_FUNCTIONS(ComPortNumbers)

public:
    struct Holder
    {
        quint32 deviceId = 0;
        bool installed = false; // else only stored in the camera
    };

    // cameras: the listed cameras; deviceId: the camera whose port is chosen.
    ComPortNumbers(QList<std::shared_ptr<Camera>> cameras, quint32 deviceId);

    // The port number the camera gets by default: the one stored in it.
    static quint32 defaultNumber(const Camera& camera);

    // Another listed camera that claims the number; an installed port first.
    std::optional<Holder> holderOf(quint32 number) const;
    // Refuses a number out of range or installed for another listed camera.
    Result checkInstall(quint32 number) const;
    // A warning about the number, empty when nobody else claims it.
    QString warning(quint32 number) const;

private:
    QList<std::shared_ptr<Camera>> m_cameras;
    quint32 m_deviceId;
};
