#pragma once

#include <QMetaType>
#include <QtGlobal>

// The states of the two camera driver services, "cirro_usb" and "cirro_eth",
// as the main window polls them and hands them on in CirrodStatusChanged.
struct CoreStates
{
    enum State : qint32 {
        Unknown = 0,      // the query failed or gave a state that has no meaning here
        NotInstalled = 1, // the service does not exist
        NotRunning = 2,   // stopped, or on its way between the states
        Running = 3,
        NoAccess = 4,     // the service manager itself can't be reached
    };

    State usb = Unknown;
    State eth = Unknown;

    // Once per process, before the type travels in a queued connection.
    static void registerMetaType();
};

inline bool operator==(const CoreStates& left, const CoreStates& right)
{
    return left.usb == right.usb && left.eth == right.eth;
}

inline bool operator!=(const CoreStates& left, const CoreStates& right)
{
    return !(left == right);
}

Q_DECLARE_METATYPE(CoreStates)

inline void CoreStates::registerMetaType()
{
    qRegisterMetaType<CoreStates>("CoreStates");
}
