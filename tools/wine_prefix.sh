#!/usr/bin/env bash
# Makes a Wine prefix without display, sound and foreign runtimes: tools/wine_prefix.sh FOLDER
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export QVR_WINEPREFIX=$1
"$root/tools/wine.sh" wineboot -i
# The null graphics driver lets message boxes work unseen.
"$root/tools/wine.sh" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
# A program that crashes ends with its backtrace instead of waiting in a dialog.
"$root/tools/wine.sh" reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
# Its server ends by itself soon after the last program. One that is told to end is killed where that takes long, as on a
# busy machine, and has then not written the registry.
WINEPREFIX=$1 wineserver -w
