#!/usr/bin/env bash
# Makes a Wine prefix without display, sound and foreign runtimes: tools/wine_prefix.sh FOLDER
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export QVR_WINEPREFIX=$1
"$root/tools/wine.sh" wineboot -i
# The null graphics driver: message boxes work without a display.
"$root/tools/wine.sh" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
# The signs of title bars, in a font that Debian's Wine does not find by itself.
signs=/usr/share/wine/fonts/marlett.ttf
[ ! -e "$signs" ] || cp "$signs" "$1/drive_c/windows/Fonts"
# A program that crashes ends with its backtrace instead of waiting in a dialog.
"$root/tools/wine.sh" reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
# Wait until wineserver ends by itself: `wineserver -k` kills it after a time limit, on a busy machine before it has
# written the registry.
WINEPREFIX=$1 wineserver -w
