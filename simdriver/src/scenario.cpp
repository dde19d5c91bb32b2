#include "scenario.h"

#include "jsonreader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace sim {

namespace {

} // namespace

Result parseJsonObject(const QByteArray& json, QJsonObject& object, const std::string& what)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return failure(PV_ERR_INVALID_PARAMETER, what + ": " + error.errorString().toStdString() + " at offset "
                                                     + std::to_string(error.offset));
    if (!document.isObject())
        return failure(PV_ERR_INVALID_PARAMETER, what + ": a JSON object is expected");
    object = document.object();
    return success();
}

namespace {

Result readArray(JsonReader& reader, const char* key, QJsonArray& array)
{
    const QJsonValue value = reader.take(key);
    if (value.isUndefined())
        return success();
    if (!value.isArray())
        return failure(PV_ERR_INVALID_PARAMETER, std::string("scenario: \"") + key + "\" must be a list");
    array = value.toArray();
    return success();
}

Result readTimelineEvent(const QJsonValue& value, TimelineEvent& event)
{
    JsonReader reader(value.toObject(), "timeline event");
    std::int64_t afterMs = 0;
    reader.readInt("afterMs", afterMs, 0, 24ll * 3600 * 1000);
    event.after = std::chrono::milliseconds(afterMs);
    const QJsonValue plug = reader.take("plug");
    const QJsonValue unplug = reader.take("unplug");
    const QJsonValue change = reader.take("change");
    if (Result r = reader.finish(); !r.ok())
        return r;
    if (plug.isObject()) {
        event.action = TimelineEvent::Action::Plug;
        event.camera = plug.toObject();
    } else if (unplug.isString()) {
        event.action = TimelineEvent::Action::Unplug;
        event.serial = unplug.toString().toStdString();
    } else if (change.isObject() && change.toObject().value("serial").isString()) {
        event.action = TimelineEvent::Action::Change;
        event.camera = change.toObject();
        event.serial = event.camera.take("serial").toString().toStdString();
    } else {
        return failure(PV_ERR_INVALID_PARAMETER,
                       "timeline event: needs \"plug\": {camera}, \"unplug\": \"serial\" or "
                       "\"change\": {\"serial\": ..., fields}");
    }
    return success();
}

} // namespace

Result makeCamera(const QJsonObject& json, SimCamera& camera)
{
    CameraKind kind = CameraKind::Usb;
    const QJsonValue kindValue = json.value("kind");
    if (!kindValue.isString() || !parseKind(kindValue.toString().toStdString(), kind))
        return failure(PV_ERR_INVALID_PARAMETER,
                       "camera: \"kind\" must be one of usb, eth, readonly, sdk, unknown");
    camera = SimCamera(kind);
    return camera.apply(json);
}

Result Scenario::fromJson(const QByteArray& json, Scenario& scenario)
{
    QJsonObject root;
    if (Result r = parseJsonObject(json, root, "scenario"); !r.ok())
        return r;

    scenario = Scenario{};
    JsonReader reader(root, "scenario");
    QJsonArray adapters, cameras, timeline;
    if (Result r = readArray(reader, "adapters", adapters); !r.ok())
        return r;
    if (Result r = readArray(reader, "cameras", cameras); !r.ok())
        return r;
    if (Result r = readArray(reader, "timeline", timeline); !r.ok())
        return r;
    const QJsonValue driver = reader.take("driver");
    const QJsonValue services = reader.take("services");
    reader.take("description");
    if (Result r = reader.finish(); !r.ok())
        return r;
    for (const auto& [key, value] : {std::pair{"driver", driver}, std::pair{"services", services}}) {
        if (!value.isUndefined() && !value.isObject())
            return failure(PV_ERR_INVALID_PARAMETER, std::string("scenario: \"") + key + "\" must be an object");
    }

    if (Result r = scenario.fleet.settings.apply(driver.toObject()); !r.ok())
        return r;
    if (Result r = scenario.fleet.settings.applyServices(services.toObject()); !r.ok())
        return r;
    for (const QJsonValue& value : adapters) {
        SimAdapter adapter;
        if (Result r = adapter.apply(value.toObject()); !r.ok())
            return r;
        if (Result r = scenario.fleet.addAdapter(std::move(adapter)); !r.ok())
            return r;
    }
    for (const QJsonValue& value : cameras) {
        SimCamera camera;
        if (Result r = makeCamera(value.toObject(), camera); !r.ok())
            return r;
        if (Result r = scenario.fleet.plug(std::move(camera)); !r.ok())
            return r;
    }
    for (const QJsonValue& value : timeline) {
        TimelineEvent event;
        if (Result r = readTimelineEvent(value, event); !r.ok())
            return r;
        scenario.timeline.push_back(std::move(event));
    }
    return success();
}

Result Scenario::fromFile(const std::string& path, Scenario& scenario)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return failure(PV_ERR_INVALID_PARAMETER,
                       "scenario " + path + ": " + file.errorString().toStdString());
    Result result = fromJson(file.readAll(), scenario);
    if (!result.ok())
        result.text = path + ": " + result.text;
    return result;
}

Result Scenario::builtIn(Scenario& scenario)
{
    return fromFile(":/cirro_sim/default.json", scenario);
}

} // namespace sim
