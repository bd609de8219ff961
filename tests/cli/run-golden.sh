#!/usr/bin/env bash
# Runs one golden file through sonalyx-cli and compares the exact output.
#
#   run-golden.sh CLI FILE.golden
#
# A golden file holds commands, each on a line starting with "$ ", followed by the
# exact output expected: standard output as it is, each line of standard error
# prefixed with "! ", then "[exit N]" when the status is not 0. Lines starting with
# "#" are comments. Commands run in order in one fresh folder with a fresh settings
# file, so later commands see what earlier ones wrote; "sonalyx-cli" in a command
# is the program under test, and any other shell command may prepare files.
# UPDATE_GOLDEN=1 rewrites the file with the actual output (review the diff!).
set -uo pipefail
cli=$(realpath "$1")
golden=$(realpath "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export SONALYX_SETTINGS="$work/Settings.reg"
export XDG_CONFIG_HOME="$work/config"
export HOME="$work"
export LC_ALL=C.UTF-8
unset SONALYX_SPEECH_LOG
sonalyx-cli() { "$cli" "$@"; }
export -f sonalyx-cli 2>/dev/null || true
export cli

expected="$work/expected.txt"
actual="$work/actual.txt"
: >"$expected"
: >"$actual"

run_command() {
  local cmd=$1
  (cd "$work/files" && eval "$cmd") >"$work/out" 2>"$work/err"
  local status=$?
  cat "$work/out"
  sed 's/^/! /' "$work/err"
  [ "$status" -ne 0 ] && echo "[exit $status]"
  return 0
}

mkdir -p "$work/files"
commands=0
while IFS= read -r line || [ -n "$line" ]; do
  case "$line" in
    '#'*) ;;
    '$ '*)
      commands=$((commands + 1))
      printf '%s\n' "$line" >>"$expected"
      printf '%s\n' "$line" >>"$actual"
      run_command "${line#\$ }" >>"$actual"
      ;;
    *) printf '%s\n' "$line" >>"$expected" ;;
  esac
done <"$golden"

if [ "$commands" -eq 0 ]; then
  echo "no commands in $golden" >&2
  exit 1
fi

# Blank lines at the very end do not count.
for f in "$expected" "$actual"; do
  printf '%s\n' "$(cat "$f")" >"$f.trim"
done

if ! cmp -s "$expected.trim" "$actual.trim"; then
  if [ "${UPDATE_GOLDEN:-0}" = 1 ]; then
    # Keep the comments where they were by rebuilding from the golden file.
    awk -v act="$actual.trim" '
      BEGIN { n = 0; while ((getline l < act) > 0) { if (l ~ /^\$ /) { n++ ; cmd[n] = l; body[n] = "" } else body[n] = body[n] l "\n" } }
      /^\$ / { k++; print cmd[k]; printf "%s", body[k]; skip = 1; next }
      /^#/ { print; next }
      { if (!skip) print }
    ' "$golden" >"$work/new" && cp "$work/new" "$golden"
    echo "updated $golden"
    exit 0
  fi
  diff -u --label expected --label actual "$expected.trim" "$actual.trim"
  exit 1
fi
echo "$commands commands match $(basename "$golden")"
