#pragma once

// Administrator rights of the running process.
namespace Elevation {

// True when the process runs with administrator rights.
bool isElevated();

} // namespace Elevation
