#!/usr/bin/env bash
# Fails when two builds of tests/parity/ do not print the same lines. Arguments: two files with what they printed.
# Reports in GoogleTest's form.
set -u
lines=$(wc -l <"$1")
if [ "$lines" -ge 1000 ] && diff <(tr -d '\r' <"$1") <(tr -d '\r' <"$2") >/dev/null; then
  echo "[  PASSED  ] 1 test."
else
  echo "Failure"
  echo "$1 ($lines lines) and $2 differ:"
  diff <(tr -d '\r' <"$1") <(tr -d '\r' <"$2") | head -n 20
  echo "[  FAILED  ] Parity.AllBuildsComputeTheSame (0 ms)"
  exit 1
fi
