#!/usr/bin/env bash
# Goes the way of the package's README in a folder and a Wine prefix that have seen nothing else, once for each width:
# the commands are those of its text, and what they print is compared. Usage: five_minutes.sh ZIP
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../support/own_prefix.sh"
# Programs start as from the command prompt of a 64-bit Windows.
export QVR_WINE=/usr/lib/wine/wine64
# Wine looks for classes in the machine's registration only. Here the user's classes are the machine's, so that what is
# registered for the user is found as on Windows.
python3 "$here/merge_user_classes.py" "$QVR_WINEPREFIX/user.reg"

python3 -m zipfile -e "$1" "$work/unpacked"
folder=$(echo "$work"/unpacked/*)
cd "$folder"
sha256sum --check --quiet --strict SHA256SUMS

# run COMMAND: a line of the README in a command prompt of this folder.
run() {
  printf '@echo off\r\n%s\r\n' "$1" >"$work/line.bat"
  timeout 300 "$tools/wine.sh" cmd /c "Z:${work//\//\\}\\line.bat" </dev/null | tr -d '\r'
}

# The commands of one width, one a line; both languages have the same ones, and the same expected output.
commands() { awk -v width="$1" '/^ *```bat/ { inside = 1; next } /^ *```/ { inside = 0 }
  inside && (/win'"$1"'/ || /'"$2"'/) { sub(/^ +/, ""); print }' README.md; }
blocks() { awk '/^ *```[a-z]/ { inside = 1 } inside { print } /^ *```$/ { inside = 0 }' "$1"; }
diff <(blocks README.md) <(blocks LEAME.md)

# Does what the README says, and prints what is to be compared. Of the trial these are its steps, with their outcome;
# here is no engine for those that want a database. Of the doctor's lines they are the one about the registration, which
# here shows as the user's, the machine's or both, and the last one.
go() {
  local width=$1 system=$2 command
  mapfile -t steps < <(commands "$width" "$system")
  [ "${#steps[@]}" = 6 ] || { echo "the README has ${#steps[@]} commands for $width-bit programs"; exit 1; }
  echo "== trial"
  run "${steps[0]}" >"$work/trial"
  grep -oE '^(ok|note|error) +try [a-z]+' "$work/trial"
  run "${steps[1]}" >/dev/null
  echo "== first script, registered"
  run "${steps[2]}" | sed 's/ *$//'
  echo "== doctor"
  run "${steps[3]}" >"$work/doctor"
  grep -E '^(ok|note|error) +registration' "$work/doctor" | grep -F "$width-bit programs" |
    sed -e "s|Z:.*win$width|FOLDER|" -e 's/, for the \(user\|machine\)//' | uniq
  tail -n 1 "$work/doctor"
  run "${steps[4]}" >/dev/null
  echo "== first script, not registered any more"
  run "${steps[2]}" | sed 's/ *$//'
  echo "== without registration"
  run "${steps[5]}" | tail -n 1
}

# What the README says that the script prints, and what the rest prints.
expected() {
  echo "== trial"
  printf 'ok     try %s\n' classes cfp values queries
  printf 'note   try %s\n' database script events procedure
  echo "ok     try tidying"
  echo "== first script, registered"
  awk '/^ *```text/ { inside = 1; next } /^ *```/ { inside = 0 } inside { sub(/^   /, ""); print }' README.md
  echo "== doctor"
  echo "ok     registration   $1-bit programs: FOLDER\\QVRlib21.dll, version $version"
  echo "no errors"
  echo "== first script, not registered any more"
  echo "== without registration"
  echo "Everything was as expected."
}
version=$(sed -n 's/^# QVRlib21 \([0-9.]*\):.*/\1/p' README.md)
diff <(expected 32) <(go 32 SysWOW64)
diff <(expected 64) <(go 64 System32)
