#!/usr/bin/env bash
# Collects the translatable texts of the sources into the .ts files of every
# shipped language. Translate the new entries with Qt Linguist afterwards.
set -euo pipefail
cd "$(dirname "$0")/.."
ts_files=(resources/translations/cameramanager_*.ts)
lupdate -no-obsolete -locations relative src -ts "${ts_files[@]}"
