#pragma once

#include "supportfile/supportfilerow.h"

#include <QCoreApplication>

#include <vector>

class SupportFileCamera;
class SupportFileTree;

// The rows that the support file viewer shows for a file's tree: the USB, ETH
// and VPE cameras, the drivers, the system, the network adapters, the USB
// controllers and the compatibility switch, in that order. Camera values are
// formatted by the device details' functions.
class SupportFileOutline final
{
    Q_DECLARE_TR_FUNCTIONS(SupportFileDialog)

public:
    // partial: the file broke off, so its counts, written after the cameras,
    // may be missing; the camera sections it holds are shown all the same.
    static std::vector<SupportFileRow> build(const SupportFileTree& tree, bool partial = false);

private:
    static SupportFileRow cameraGroup(const SupportFileTree& tree, int kind, bool partial);
    static SupportFileRow usbCamera(const SupportFileCamera& camera);
    static SupportFileRow ethCamera(const SupportFileCamera& camera);
    static void addEthDevice(SupportFileRow& row, const SupportFileCamera& camera);
    static void addEthAdapter(SupportFileRow& row, const SupportFileCamera& camera);
    static void addEthDebug(SupportFileRow& row, const SupportFileCamera& camera);
    static SupportFileRow drivers(const SupportFileTree& tree);
    static SupportFileRow systemInformation(const SupportFileTree& tree);
    static SupportFileRow networkAdapters(const SupportFileTree& tree);
    static SupportFileRow usbControllers(const SupportFileTree& tree);
    static SupportFileRow summitCompatibility(const SupportFileTree& tree);
};
