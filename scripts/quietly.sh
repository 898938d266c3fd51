# shellcheck shell=bash
# Sourced by the other scripts: quietly COMMAND... runs the command and shows its output only if it fails.

quietly() {
  local log status=0
  log=$(mktemp)
  "$@" >"$log" 2>&1 || status=$?
  if [[ $status -ne 0 ]]; then
    cat "$log" >&2
    echo "failed ($status): $*" >&2
  fi
  rm -f "$log"
  return "$status"
}
