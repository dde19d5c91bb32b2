#pragma once

#include "camera/camera.h"
#include "details/usbtopology.h"
#include "supportfile/supportfilenames.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>

class SupportFileTree;

// One camera section of a support file as a camera record, so that its
// values are shown by the same functions as a live camera's. Keys the file
// lacks read as the defaults "-1" (numbers) and "-" (texts).
class SupportFileCamera final
{
public:
    enum class Kind { Usb, Eth, Vpe };

    SupportFileCamera(const SupportFileTree& tree, std::wstring section, Kind kind);

    const Camera& camera() const { return m_camera; }
    bool has(SupportFileNames::Name key) const;
    bool has(const std::wstring& key) const;
    // The formatted value where the file has the key, else its default.
    QString value(SupportFileNames::Name key, const std::function<QString(const Camera&)>& format) const;
    // The key's text as the file holds it, else the default.
    QString text(SupportFileNames::Name key) const;
    // The hubs and the controller of the path keys ("1. Hub" and so on in any language).
    std::optional<UsbTopology::Location> usbPath() const;

    static QString defaultText(SupportFileNames::Name key);

private:
    const SupportFileTree& m_tree;
    std::wstring m_section;
    Camera m_camera;
};
