#!/usr/bin/env bash
# Builds the manual's site: build/manual/site/, to be opened from its index.html; nothing in it needs a network.
# tools/manual.sh --check only checks that the reference is complete, and diagrams and excerpts are current.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
manual=$root/build/manual
settings=$root/docs/manual/site

"$root/tools/manual/reference.py" --check
[ "${1:-}" = --check ] && exit 0

need manual
rm -rf "$manual"
mkdir -p "$manual"
"$root/tools/manual/reference.py" "$manual/reference"
"$root/tools/manual/assemble.py" "$manual/reference" "$manual/sources"
for sources in "$manual"/sources/*/; do
  language=$(basename "$sources")
  sphinx-build -q -W --keep-going -b html -c "$settings" -D language="$language" -d "$manual/doctrees/$language" \
    "$sources" "$manual/site/$language"
  # Sphinx's caches.
  rm -f "$manual/site/$language/.buildinfo" "$manual/site/$language/objects.inv"
done
cp "$settings/index.html" "$manual/site/"
"$root/tools/manual/offline.py" "$manual/site"

# The licences of the theme and the search.
mkdir "$manual/site/licences"
for package in furo libjs-jquery libjs-underscore node-normalize.css sphinx-common; do
  cp "/usr/share/doc/$package/copyright" "$manual/site/licences/$package.txt"
done
