#!/usr/bin/env bash
# Installs what building, testing and running the camera manager needs on
# Debian 12. Run as root.
set -euo pipefail

packages=(
    build-essential cmake ninja-build ccache pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n libqt5serialport5-dev
    libboost-dev libbenchmark-dev
    iproute2 xvfb xauth fonts-dejavu-core fonts-droid-fallback
    pci.ids usb.ids dbus-daemon
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
    export DEBIAN_FRONTEND=noninteractive
    apt-get update
    apt-get install -y --no-install-recommends "${missing[@]}"
fi
