#pragma once

#include "fleet.h"

#include <QByteArray>
#include <QJsonObject>

#include <chrono>
#include <string>
#include <vector>

namespace sim {

// Something a scenario makes happen some time after it was loaded.
struct TimelineEvent
{
    enum class Action { Plug, Unplug, Change };

    std::chrono::milliseconds after{0};
    Action action = Action::Plug;
    QJsonObject camera;  // Plug: the camera; Change: the fields to change
    std::string serial;  // Unplug, Change: the camera addressed
};

// A fleet with its adapters and settings, and an optional timeline. The JSON
// format is described in simdriver/README.md.
struct Scenario
{
    Fleet fleet;
    std::vector<TimelineEvent> timeline;

    static Result fromJson(const QByteArray& json, Scenario& scenario);
    static Result fromFile(const std::string& path, Scenario& scenario);
    static Result builtIn(Scenario& scenario);
};

// Parses a JSON text that must hold one object.
Result parseJsonObject(const QByteArray& json, QJsonObject& object, const std::string& what);

// A camera as a scenario or a plug request describes it.
Result makeCamera(const QJsonObject& json, SimCamera& camera);

} // namespace sim
