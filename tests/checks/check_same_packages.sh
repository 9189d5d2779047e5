#!/usr/bin/env bash
# Fails when two folders do not hold the same packages, byte for byte. Arguments: the folders. Reports in
# GoogleTest's form.
set -u
if [ -n "$(ls "$1")" ] && diff -r "$1" "$2"; then
  echo "[  PASSED  ] 1 test."
else
  echo "Failure"
  echo "$1 and $2 are not the same"
  echo "[  FAILED  ] Packages.AreTheSameWheneverAndWhereverTheyArePacked (0 ms)"
  exit 1
fi
