#!/usr/bin/env bash
# Runs a Windows program in the prefix of the build folder: tools/wine.sh PROGRAM [ARGUMENTS]; --stop ends its server.
set -eu
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=${QVR_WINEPREFIX:-$root/build/wine} WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY WAYLAND_DISPLAY
# A display of the caller's own, for programs that are to be seen.
[ -z "${QVR_DISPLAY:-}" ] || export DISPLAY=$QVR_DISPLAY
if [ "${1:-}" = --stop ]; then
  wineserver -k || true  # there may be none
  exit
fi
[ -d "$WINEPREFIX" ] || [ "${1:-}" = wineboot ] || {
  echo "wine.sh: there is no prefix $WINEPREFIX; tools/wine_prefix.sh makes one" >&2
  exit 1
}
exec "${QVR_WINE:-wine}" "$@"
