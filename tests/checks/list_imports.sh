#!/usr/bin/env bash
# Lists what programs import, one "library function" a line, sorted. Arguments: the programs.
set -euo pipefail
for program in "$@"; do
  objdump -p "$program" | awk '/DLL Name:/ { library = $3 } /^\t[0-9a-f]+\t +[0-9]+ / { print tolower(library), $3 }'
done | LC_ALL=C sort -u
