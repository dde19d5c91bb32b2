#include "services/simulatedservicemanager.h"

SimulatedServiceManager::SimulatedServiceManager(const Controls& controls)
    : m_controls(controls)
{
    Q_ASSERT(controls.isComplete());
}

CoreStates::State SimulatedServiceManager::state(const QString& service) const
{
    std::int32_t state = 0;
    if (m_controls.getServiceState(service.toLatin1().constData(), &state) != 0)
        return CoreStates::Unknown;
    switch (state) {
    case CoreStates::NotInstalled:
    case CoreStates::NotRunning:
    case CoreStates::Running:
        return CoreStates::State(state);
    default:
        return CoreStates::Unknown;
    }
}

Result SimulatedServiceManager::change(const QString& service, Change change)
{
    const std::int32_t code =
        m_controls.setServiceRunning(service.toLatin1().constData(), change == Change::Start ? 1 : 0);
    if (code == 0)
        return {};
    if (state(service) == CoreStates::NotInstalled)
        return notInstalled(service);
    return failed(service, change, tr("the simulated driver refused with code %1.").arg(code));
}
