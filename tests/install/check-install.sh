#!/usr/bin/env bash
# Installs the build into a temporary prefix and compares the installed files with
# the expected list (one path a line, relative to the prefix; help pages counted,
# not listed), then validates the menu entry.
#
#   check-install.sh BUILD_DIR EXPECTED_FILES
set -euo pipefail
build=$1
expected=$2
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix" >/dev/null
actual=$(cd "$prefix" && find . -type f ! -path './share/sonalyx/help/*' | sed 's|^\./||' | sort)
if ! diff -u <(sort "$expected") <(printf '%s\n' "$actual"); then
  echo "installed files differ from $expected" >&2
  exit 1
fi
pages=$(find "$prefix/share/sonalyx/help" -type f -name '*.htm*' | wc -l)
if [ "$pages" -lt 1 ]; then
  echo "no help pages installed" >&2
  exit 1
fi
if ! command -v desktop-file-validate >/dev/null; then
  echo "desktop-file-validate is missing (package desktop-file-utils)" >&2
  exit 1
fi
desktop-file-validate "$prefix/share/applications/sonalyx.desktop"
echo "installed $(printf '%s\n' "$actual" | wc -l) files and $pages help pages; the menu entry is valid"
