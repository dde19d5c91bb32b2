/*
 * Control interface of the simulated camera driver. The simulated driver
 * exports these next to the pv_ operations so that tests and demos can plug,
 * unplug and change virtual cameras, make operations fail, and read what the
 * driver sees. A vendor library does not have them; probe with dlsym before
 * calling them from code that may run on either.
 *
 * Scenario and camera descriptions are JSON; the schema is described in
 * simdriver/README.md.
 */
#ifndef PVSIM_H
#define PVSIM_H

#include "cirro_api.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Replaces the whole fleet, the adapters and the driver settings by those of a
 * scenario file (path NULL: the built-in default fleet). Cameras that leave
 * signal PV_EVENT_DEVICE_REMOVED, cameras that come PV_EVENT_DEVICE_ARRIVED.
 * Event registrations and open failures stay as they are. */
PV_API int32_t PV_CALL pvsim_LoadScenario(const char* path);
PV_API int32_t PV_CALL pvsim_LoadScenarioText(const char* json);

/* Plugs a camera described by a JSON object; writes its device ID. */
PV_API int32_t PV_CALL pvsim_PlugCamera(const char* cameraJson, uint32_t* deviceId);
PV_API int32_t PV_CALL pvsim_UnplugCamera(uint32_t deviceId);
/* Applies the fields of a JSON object to a connected camera. */
PV_API int32_t PV_CALL pvsim_ChangeCamera(uint32_t deviceId, const char* changesJson);

/* The next `times` calls of the named operation (such as "pv_OpenCamera")
 * fail with `code` without doing anything. */
PV_API int32_t PV_CALL pvsim_FailOperation(const char* operation, int32_t code, uint32_t times);
PV_API int32_t PV_CALL pvsim_ClearFailures(void);

/* The driver's view as a JSON document: cameras with their state and who has
 * them open, adapters, settings, services. Writes the size needed including
 * the terminating NUL into *required; PV_ERR_BUFFER_TOO_SMALL when it does not
 * fit into `size` bytes, and then a size with room for the state to grow
 * before the next call (the adapters' counters never stand still). */
PV_API int32_t PV_CALL pvsim_GetState(char* buffer, uint32_t size, uint32_t* required);

/* Why the scenario file named by CIRRO_SIM_SCENARIO when the driver started
 * was not loaded (the built-in fleet runs instead): the file and the problem,
 * as one NUL-terminated text; an empty text when it was loaded or none was
 * named. Writes the size needed including the NUL into *required; with
 * buffer NULL nothing else, else PV_ERR_BUFFER_TOO_SMALL when the text does
 * not fit into `size` bytes. */
PV_API int32_t PV_CALL pvsim_GetStartScenarioError(char* buffer, uint32_t size, uint32_t* required);

/* The two driver services, "cirro_usb" and "cirro_eth". A stopped service
 * hides its cameras. State: 1 not installed, 2 stopped, 3 running. */
PV_API int32_t PV_CALL pvsim_SetServiceRunning(const char* service, int32_t running);
PV_API int32_t PV_CALL pvsim_GetServiceState(const char* service, int32_t* state);

PV_API int32_t PV_CALL pvsim_SetApiVersion(uint32_t version);
/* Factor applied to every simulated duration (firmware upload, reboot,
 * timeline); 1.0 is real time. */
PV_API int32_t PV_CALL pvsim_SetTimeScale(double scale);

/* An ARP request on a virtual adapter's network: does a host have targetIp
 * (dotted text)? 0 when one answers (its MAC written to mac[6]),
 * PV_ERR_TIMEOUT when nobody answers within the adapter's ARP time-out,
 * PV_ERR_UNKNOWN_ADAPTER for an adapter that does not exist and
 * PV_ERR_INVALID_PARAMETER for a target that is not a usable host address of
 * the adapter's subnet (nothing is asked then). */
PV_API int32_t PV_CALL pvsim_ArpRequest(const char* adapter, const char* targetIp, uint8_t* mac);

#ifdef __cplusplus
}
#endif

#endif /* PVSIM_H */
