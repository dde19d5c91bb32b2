#pragma once

#include "common/result.h"

#include <cirro_api.h>

#include <QCoreApplication>
#include <QString>

// What the maintenance functions share about a camera-API call's outcome.
class CameraCall final
{
    Q_DECLARE_TR_FUNCTIONS(CameraCall)

public:
    // A library that does not know a feature or command answers this.
    static bool isUnsupported(int code) { return code == PV_ERR_UNKNOWN_COMMAND; }
    // what says what failed; the text names the driver's code.
    static Result failed(int code, const QString& what);
    // A write that the driver accepted but that reads back differently.
    static Result notConfirmed(const QString& what);
    static QString unsupportedText();

    template <typename Block>
    static int readFeature(quint32 handle, quint32 feature, quint32 index, Block& block)
    {
        return pv_DeviceFeature(handle, PV_FEATURE_READ, feature, index, &block, sizeof block);
    }
    template <typename Block>
    static int writeFeature(quint32 handle, quint32 feature, quint32 index, Block block)
    {
        return pv_DeviceFeature(handle, PV_FEATURE_WRITE, feature, index, &block, sizeof block);
    }
    // Writes the feature and reads it back; same(written, read) confirms the write.
    template <typename Block, typename Same>
    static Result writeConfirmed(quint32 handle, quint32 feature, quint32 index, const Block& block,
                                 const QString& what, Same same)
    {
        if (const int code = writeFeature(handle, feature, index, block); code != PV_OK)
            return failed(code, what);
        Block back{};
        if (const int code = readFeature(handle, feature, index, back); code != PV_OK)
            return failed(code, tr("%1\nThe value could not be read back.").arg(what));
        return same(block, back) ? Result() : notConfirmed(what);
    }
    // Runs a command without parameter, or with a 32-bit one.
    static Result command(quint32 handle, quint32 command, const QString& what);
    static Result command(quint32 handle, quint32 command, quint32 parameter, const QString& what);
};
