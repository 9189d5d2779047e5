#!/usr/bin/env bash
# Fails on an import that Windows 7 does not have: each library and function has to stand in the reviewed list.
# Argument: a list made by list_imports.sh. Reports in GoogleTest's form.
set -u
cd "$(dirname "$0")"
unknown=$(grep -v '^#' windows7_imports.txt | LC_ALL=C sort -u | LC_ALL=C comm -13 - "$1")
if [ -s "$1" ] && [ -z "$unknown" ]; then
  echo "[  PASSED  ] 1 test."
else
  echo "Failure"
  echo "$1: not in the list of what Windows 7 has:"
  echo "$unknown"
  echo "[  FAILED  ] Imports.AreOnlyWhatWindows7Has (0 ms)"
  exit 1
fi
