#!/usr/bin/env bash
# Fails on an include between rooms that the table does not allow, and on <windows.h> outside a _win file.
# Reports in GoogleTest's form, so that the test run can count it.
set -u
cd "$(dirname "$0")/../.."
declare -A may=(
  [base]="base"
  [pictures]="base os pictures"
  [library]="base os library"
  [os]="base os"
  [forms]="base os pictures forms"
  [settings]="base os settings"
  [startup]="base os pictures library forms settings startup saver dialog auxwin"
  [saver]="base os pictures library forms settings saver"
  [dialog]="base os pictures library forms settings auxwin dialog"
  [auxwin]="base os pictures library forms auxwin"
)
bad=0
for room in "${!may[@]}"; do
  while IFS=: read -r file _ include; do
    target=${include#*\"}
    target=${target%%\"*}
    case " ${may[$room]} " in
      *" ${target%%/*} "*) ;;
      *) echo "Failure"; echo "$file: $target: '$room' may not include from '${target%%/*}'"; bad=$((bad + 1)) ;;
    esac
  done < <(grep -rnE '^#include "' "src/$room" 2>/dev/null)
done
while IFS= read -r file; do
  echo "Failure"; echo "$file: only _win files include the Windows API"; bad=$((bad + 1))
done < <(grep -rlE '#[[:space:]]*include[[:space:]]*<(windows|commctrl|commdlg|wincodec|shellapi|shlobj|windowsx|objbase)\.h>' src |
         grep -vE '_win\.(h|cpp)$')
if [ $bad = 0 ]; then
  echo "[  PASSED  ] 1 test."
else
  echo "[  FAILED  ] Arrows.PointOnlyWhereTheTableAllows (0 ms)"
  exit 1
fi
