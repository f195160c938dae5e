#!/usr/bin/env bash
# Runs a command beside a virtual screen of its own, which tools/wine.sh shows programs on: on_screen.sh COMMAND...
set -euo pipefail
work=$(mktemp -d)
tidy_up() {
  local outcome=$?
  # A screen that has ended by itself was not there for all that was to be seen.
  if [ -n "${server:-}" ]; then kill "$server" || outcome=1; fi
  rm -rf "$work"
  exit "$outcome"
}
trap tidy_up EXIT

# The server finds a free number by itself and tells it when it is ready.
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/number" >"$work/log" 2>&1 &
server=$!
read -r -t 60 number <"$work/number" || { cat "$work/log" >&2; exit 1; }
QVR_DISPLAY=:$number "$@"
