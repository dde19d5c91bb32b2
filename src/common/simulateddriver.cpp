#include "common/simulateddriver.h"

#include <pvsim.h>

#include <QByteArray>

namespace SimulatedDriver {

QString startScenarioError()
{
    static const auto query = lookUp<decltype(&pvsim_GetStartScenarioError)>("pvsim_GetStartScenarioError");
    if (!query)
        return {};
    std::uint32_t required = 0;
    if (query(nullptr, 0, &required) != PV_OK || required <= 1)
        return {};
    QByteArray text(int(required), '\0');
    if (query(text.data(), required, &required) != PV_OK)
        return {};
    return QString::fromUtf8(text.constData());
}

} // namespace SimulatedDriver
