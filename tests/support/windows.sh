# Sourced with the width of the programs that are to run, 32 or 64. Gives $width, $system (the folder of that width's
# system programs), wine PROGRAM [ARGUMENT...], which reads nothing and has an end, and windows_path PATH.
width=$1
system='C:\windows\system32'
[ "$width" = 64 ] || system='C:\windows\syswow64'
# The 32-bit loader, which "wine" starts first, would see the 32-bit programs in the folder of the 64-bit ones.
[ "$width" = 32 ] || export QVR_WINE=/usr/lib/wine/wine64
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)
wine() { timeout 300 "$tools/wine.sh" "$@" </dev/null; }
windows_path() { printf 'Z:%s' "${1//\//\\}"; }
