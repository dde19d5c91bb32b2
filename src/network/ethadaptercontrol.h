#pragma once

#include "common/result.h"
#include "network/networkadapter.h"

#include <cirro_api.h>

#include <QCoreApplication>

#include <optional>

// The ETH driver's side of one network adapter: whether its network service
// is bound to the adapter, its packet filter and its 2 KB packets, read and
// written through the camera API. Synchronous; call it from the GUI thread.
class EthAdapterControl final
{
    Q_DECLARE_TR_FUNCTIONS(EthDaemonConfig)

public:
    enum PacketFilter { PassAll = 0, BlockCrget = 1, BlockAll = 2 };
    // The smallest packet-size word of an adapter that carries 2 KB packets.
    static constexpr quint32 jumboPacketSize = 1451;
    // Below this the adapter does not carry 2 KB packets at all.
    static constexpr quint32 twoKilobytes = 2048;

    // The adapters the ETH service can serve: those that broadcast and multicast.
    static NetworkAdapterList serviceableAdapters();

    static std::optional<pv_AdapterBlock> readBlock(const QString& interfaceName);
    // The adapter's current packet size, or nothing when the driver can't tell.
    static std::optional<quint32> packetSize(const QString& interfaceName);
    // Writes the filter, then has the driver apply its settings.
    static Result setPacketFilter(const QString& interfaceName, PacketFilter filter);
    static Result setJumboPackets(const QString& interfaceName, bool enabled);
    // Binds or unbinds the ETH service and has the driver look at its
    // adapters again, which shows or hides the cameras behind the adapter.
    static Result setBound(const QString& interfaceName, bool bound);
};
