#pragma once

#include "simdriver.h"

#include <functional>

// The pv_ operations of the simulated driver, one function each, grouped by
// area in cameraoperations.cpp, ethoperations.cpp and driveroperations.cpp.
namespace sim::ops {

Result getNumberOfCameras(SimDriver& driver, std::int32_t* count);
Result getCameraList(SimDriver& driver, void* listBuffer);
Result openCamera(SimDriver& driver, std::uint32_t* handle, void* window);
Result closeCamera(SimDriver& driver, std::uint32_t handle);
Result getCameraInfo(SimDriver& driver, std::uint32_t handle, pv_CameraInfo* info);
Result getSensorInfo(SimDriver& driver, std::uint32_t handle, pv_SensorInfo* info);
Result getRevisionInfo(SimDriver& driver, std::uint32_t handle, pv_RevisionInfo* info);
Result deviceInfo(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* block, std::uint32_t size);
Result deviceFeature(SimDriver& driver, std::uint32_t handle, std::uint32_t command, std::uint32_t feature,
                     std::uint32_t index, void* block, std::uint32_t size);
Result rebootDevice(SimDriver& driver, std::uint32_t handle, std::uint32_t mode);
Result cameraCommand(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* parameter,
                     std::uint32_t size);

// Fills a feature block of the camera that handle names (open or by device ID).
Result readFeatureBlock(SimDriver& driver, std::uint32_t handle, void* block, std::uint32_t size,
                        const std::function<void(const SimCamera&, pv_FeatureBlock&)>& fill);

// Camera ID, user EEPROM, parameter sets, FPN calibration and liquid lens.
Result maintenanceFeature(SimDriver& driver, std::uint32_t handle, std::uint32_t command, std::uint32_t feature,
                          std::uint32_t index, void* block, std::uint32_t size);
Result maintenanceCommand(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* parameter,
                          std::uint32_t size);

// The virtual COM ports: the driver-wide support flag and broadcast port, a
// camera's port, and the port number stored in the camera.
bool isComPortConfiguration(std::uint32_t command);
bool isComPortCommand(std::uint32_t command);
Result comPortConfiguration(SimDriver& driver, std::uint32_t command, void* buffer, std::uint32_t size);
Result comPortCommand(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* parameter,
                      std::uint32_t size);
Result comPortInfo(SimDriver& driver, std::uint32_t handle, void* block, std::uint32_t size);
Result comPortNumberFeature(SimDriver& driver, std::uint32_t handle, std::uint32_t command, std::uint32_t index,
                            void* block, std::uint32_t size);

Result event(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* block, std::uint32_t size);
Result configuration(SimDriver& driver, std::uint32_t command, void* buffer, std::uint32_t size);
Result bootBoost(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* buffer, std::uint32_t size);
Result fetchRegistryValues(SimDriver& driver);
Result fetchTcpIp(SimDriver& driver);

Result ipConfig(SimDriver& driver, std::int32_t deviceId, const std::uint8_t* mac, std::uint32_t command,
                void* block, std::uint32_t size);
Result ethConfig(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* buffer, std::uint32_t size);
Result ethAdapterConfig(SimDriver& driver, const pv_AdapterId* adapter, std::uint32_t set, std::uint32_t command,
                        void* buffer, std::uint32_t size);
// An ARP request on an adapter's virtual network; waits out the time-out when nobody answers.
Result arpRequest(SimDriver& driver, const char* adapterName, const char* targetIp, std::uint8_t* mac);

// Starter firmware upload time by camera type code.
std::chrono::milliseconds firmwareUploadDuration(std::uint8_t typeCode);

} // namespace sim::ops
