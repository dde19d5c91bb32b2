#pragma once

#include "services/servicemanager.h"

#include <cstdint>

// The two driver services of the simulated camera driver, through its own
// control functions. The application does not link those (a vendor library
// has none), so they come in as pointers found at run time.
class SimulatedServiceManager final : public ServiceManager
{
    Q_DECLARE_TR_FUNCTIONS(SimulatedServiceManager)

public:
    struct Controls
    {
        std::int32_t (*getServiceState)(const char* service, std::int32_t* state) = nullptr;
        std::int32_t (*setServiceRunning)(const char* service, std::int32_t running) = nullptr;

        bool isComplete() const { return getServiceState && setServiceRunning; }
    };

    // `controls` must be complete.
    explicit SimulatedServiceManager(const Controls& controls);

    CoreStates::State state(const QString& service) const override;

protected:
    Result change(const QString& service, Change change) override;

private:
    Controls m_controls;
};
