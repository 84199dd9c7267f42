#!/usr/bin/env bash
# usage: build-with-progress.sh TITLE FOLDER [ARGUMENT...]
# `cmake --build FOLDER ARGUMENT...`, which shows on standard error how far it is and about how long it still takes in
# place of a line for each file. Where the build fails, the end of what the compiler said follows.
set -euo pipefail

readonly title=$1 folder=$2
shift 2
log=$(mktemp)
readonly log
trap 'rm -f "$log"' EXIT

# A terminal has one line that is rewritten, anything else a line for each tenth of the way.
tenth=0
show() {
  local built=$1 all=$2 left=''
  if [ -t 2 ]; then
    [ "$built" -lt 5 ] || left=", about $((SECONDS * (all - built) / built / 60 + 1)) min left"
    [ "$built" -lt "$all" ] || left=''
    printf '\r\033[K%s: %d of %d%s' "$title" "$built" "$all" "$left" >&2
  elif [ $((10 * built / all)) -gt "$tenth" ]; then
    tenth=$((10 * built / all))
    printf '%s: %d of %d\n' "$title" "$built" "$all" >&2
  fi
}

follow() {
  local line
  while IFS= read -r line; do
    if [[ $line =~ ^\[([0-9]+)/([1-9][0-9]*)\] ]]; then show "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"; fi
  done
  [ ! -t 2 ] || printf '\r\033[K' >&2
}

cmake --build "$folder" "$@" 2>&1 | tee "$log" | follow || { tail -n 40 "$log" >&2; exit 1; }
