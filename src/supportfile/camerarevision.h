#pragma once

#include <cirro_api.h>

#include <QString>

#include <array>
#include <optional>

// The revision record of an open camera: type, version, date of QC,
// manufacturer and the revisions of its boards, one text each, in the order
// of the support file's revision keys.
struct CameraRevision
{
    static constexpr std::size_t fieldCount = 18;
    std::array<QString, fieldCount> fields;

    static CameraRevision fromBlock(const pv_RevisionInfo& block);
    // Opens the camera by device ID for a moment and reads its record;
    // nothing when it can't be opened (in use elsewhere) or has none.
    static std::optional<CameraRevision> query(quint32 deviceId);
};
