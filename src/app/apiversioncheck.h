#pragma once

#include <QString>

#include <cstdint>

// The camera API library must be at least version 4.81.
namespace ApiVersionCheck {

constexpr int minimumMajor = 4;
constexpr int minimumMinor = 81;

// version: top byte major, next byte minor.
bool isSupported(std::uint32_t version);
QString refusalText();

} // namespace ApiVersionCheck
