#pragma once

#include "network/macaddress.h"

struct EthCameraSettings;

#include <cirro_api.h>

#include <QMetaType>
#include <QObject>

#include <array>

// What the apply job of the manual ETH configuration ended with: the camera
// API's code of the first failing step (0 when every step succeeded) and that
// step.
struct ConfigResult
{
    enum Step : quint32 { PersistentIp, Range, Dhcp, MulticastIp, MulticastEnable, Done };

    quint32 code = 0;
    quint32 step = Done;
};
Q_DECLARE_METATYPE(ConfigResult)

// The values to write to one GigE camera and its adapter, and which of them
// changed. Shared between the dialog (GUI thread) and the apply job (a pool
// thread): the dialog fills it while no job runs. A flag stays set until its
// value is written, so that after a failure another apply writes what is left.
class EthConfigSettings final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EthConfigSettings)

public:
    enum Item { PersistentIp, Range, Dhcp, MulticastIp, MulticastEnable, ItemCount };

    EthConfigSettings(quint32 deviceId, const MacAddress& adapterMac);

    quint32 deviceId;
    MacAddress adapterMac;
    pv_IpBlock persistent{};
    pv_IpBlock range{};
    quint32 dhcpEnable = 0;
    std::uint8_t multicastIp[4]{};
    quint32 multicastEnable = 0;
    std::array<bool, ItemCount> changed{};

    // Host-order numbers; the blocks take them in network order.
    void setPersistent(quint32 address, quint32 mask);
    // Range words as they lie in memory: see the dialog's apply handler.
    void setRangeWords(quint32 begin, quint32 end);
    void setRange(quint32 begin, quint32 end);
    // The adapter's range block as the driver takes it: begin and end (host
    // order) in network order, and the word that marks the range applied.
    static pv_IpBlock rangeBlock(quint32 begin, quint32 end);
    void setDhcp(bool enable);
    void setMulticastIp(quint32 address);
    void setMulticastEnable(bool enable);
    int changedCount() const;
    // Everything of the addressing that could be read before a change: the
    // persistent address, the adapter's range and DHCP.
    void restore(const EthCameraSettings& before);

    // The apply job: writes every changed item in order, stops at the first
    // failure. Runs on a pool thread; reports each step through settingText.
    ConfigResult apply();

signals:
    // Emitted from the job's thread.
    void settingText(const QString& text, int progress);

private:
    std::int32_t write(Item item);
};
