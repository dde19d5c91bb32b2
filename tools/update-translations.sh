#!/usr/bin/env bash
# Collects the translatable texts of the sources into the .ts files of every
# shipped language. Translate the new entries with Qt Linguist afterwards.
set -euo pipefail
cd "$(dirname "$0")/.."
translated=()
for ts in resources/translations/cameramanager_*.ts; do
    [ "$ts" = resources/translations/cameramanager_en.ts ] || translated+=("$ts")
done
lupdate -no-obsolete -locations relative src api/driversettings -ts "${translated[@]}"
# The sources are English; their file only carries plural forms.
lupdate -pluralonly -no-obsolete -locations none src -ts resources/translations/cameramanager_en.ts
