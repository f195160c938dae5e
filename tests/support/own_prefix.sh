# Sourced: makes the folder $work and in it a Wine prefix that has certainly nothing registered; both go at the end.
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)
work=$(mktemp -d)
export QVR_WINEPREFIX=$work/prefix
tidy_up() {
  local outcome=$?
  "$tools/wine.sh" --stop
  rm -rf "$work"
  exit "$outcome"
}
trap tidy_up EXIT
"$tools/wine_prefix.sh" "$QVR_WINEPREFIX" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
