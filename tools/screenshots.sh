#!/usr/bin/env bash
# Takes the pictures in docs/images/: with a headless browser of the manual's site, which tools/manual.sh has to have
# built, and of what tools/demo.sh printed when it last ran; and of the list form as its test last saw it.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
need browser
site=$root/build/manual/site
told=$root/build/demo/gestion.txt
seen=$build/win32/pictures
images=$root/docs/images
[ -e "$site/index.html" ] || { echo "screenshots: build the site first: tools/manual.sh" >&2; exit 1; }
[ -e "$told" ] || { echo "screenshots: run the demo first: tools/demo.sh" >&2; exit 1; }
[ -e "$seen/list-form.bmp" ] || { echo "screenshots: run the test first: ctest --preset win32 -R list_form" >&2; exit 1; }
mkdir -p "$images"

# take NAME PAGE WIDTH HEIGHT [FOLDER]
take() {
  "$root/tests/site/screenshot.py" "${5:-$site}" "$2" "$images/$1.png" "$3" "$4"
  keep "$1"
}

keep() {
  pngquant --force --strip --speed 1 --output "$images/$1.png" 64 "$images/$1.png"
  [ "$(stat -c %s "$images/$1.png")" -le 153600 ] || { echo "screenshots: $1.png is too large" >&2; exit 1; }
}

take site-en en/reference/QVRcfp.html#sqlinsert 1280 860
take site-es-narrow es/reference/QVRcfp.html#sqlinsert 360 720
take site-search 'es/search.html?q=fecha' 1280 720

terminal=$(mktemp -d)
trap 'rm -rf "$terminal"' EXIT
"$root/tools/terminal_page.py" "$told" 9 >"$terminal/index.html"
take demo index.html 1000 640 "$terminal"

for name in list-form list-form-update; do
  convert "$seen/$name.bmp" -alpha off "$images/$name.png"
  keep "$name"
done
