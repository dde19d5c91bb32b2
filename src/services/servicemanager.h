#pragma once

#include "common/result.h"
#include "services/corestates.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

// State of a camera driver service by name ("cirro_usb", "cirro_eth"), and
// starting or stopping it. Which manager answers depends on the camera API
// library: the simulated driver runs its own two services, a vendor library
// has the host's real ones.
//
// Every call is synchronous and meant for the GUI thread; none throws.
class ServiceManager
{
    Q_DECLARE_TR_FUNCTIONS(ServiceManager)
    Q_DISABLE_COPY_MOVE(ServiceManager)

public:
    // Chooses the manager for the API library this process runs with; call
    // once at start-up.
    static std::unique_ptr<ServiceManager> create();

    ServiceManager() = default;
    virtual ~ServiceManager();

    virtual CoreStates::State state(const QString& service) const = 0;
    // The USB and the ETH driver service together.
    CoreStates coreStates() const;

    // Both return once the manager has taken the request, without waiting
    // for the service to arrive in its new state.
    Result start(const QString& service);
    Result stop(const QString& service);

protected:
    enum class Change { Start, Stop };

    virtual Result change(const QString& service, Change change) = 0;

    static Result notInstalled(const QString& service);
    // `detail` says why, in the words of the service manager.
    static Result failed(const QString& service, Change change, const QString& detail);
};
