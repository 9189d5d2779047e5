#!/usr/bin/env bash
# Makes the manifests of packages that only have their names, and lets the check refuse them after each fault that a
# manifest could have. Reports in GoogleTest's form.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/lib.sh"
source "$root/scripts/package.sh"
source "$root/scripts/manifests.sh"
mkdir -p "$root/out"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
sound=$folder/sound faulty=$folder/faulty
mkdir "$sound"
place=https://packages.lumora.example/1.2.3
passed=0 failed=0

make_all() {
  local name
  for name in $(package_names 1.2.3); do printf 'the bytes of %s' "$name" >"$sound/$name"; done
  write_sums "$sound" 1.2.3
  make_manifests "$sound" 1.2.3 "$place"
}

verdict() {
  if [ "$1" = "$2" ]; then
    passed=$((passed + 1))
  else
    echo "Failure"
    echo "$3: $1 in place of $2"
    echo "[  FAILED  ] Manifests.$3 (0 ms)"
    failed=$((failed + 1))
  fi
}

# $1: name of the fault, $2: file, $3: the sed command that makes it.
refuses() {
  local refused=no
  rm -rf "$faulty"
  cp -r "$sound" "$faulty"
  sed -i "$3" "$faulty/$2"
  "$root/tests/checks/check_manifests.py" "$faulty" 1.2.3 "$place" >/dev/null || refused=yes
  verdict "$refused" yes "Refuses$1"
}

installer=manifests/winget/Lumora.ScreenSaver.installer.yaml
locale=manifests/winget/Lumora.ScreenSaver.locale.en-US.yaml
if make_all; then made=yes; else made=no; fi
verdict "$made" yes AreMadeOfThePackages
refuses AnotherSum "$installer" "s/^\(  InstallerSha256: \).*/\1$(printf '%064d' 0)/"
refuses AnotherVersion manifests/winget/Lumora.ScreenSaver.yaml 's/1\.2\.3/1.2.4/'
refuses AnUnknownField "$installer" 's/^Scope:/Scoop:/'
refuses AnUnknownArchitecture "$installer" 's/x86$/i386/'
refuses AReturnCodeAsText "$installer" 's/^\(- InstallerReturnCode: \)1$/\1"1"/'
refuses AReturnCodeOfSuccess "$installer" 's/^\(- InstallerReturnCode: \)1$/\10/'
refuses ADayThatIsNone "$installer" 's/^ReleaseDate:.*/ReleaseDate: 2026-02-30/'
refuses AWeekInThePlaceOfADay "$installer" 's/^ReleaseDate:.*/ReleaseDate: 2026-W01-1/'
refuses AReturnCodeWithoutItsMeaning "$installer" '/^  ReturnResponse: packageInUse$/d'
refuses AnInstallerOfNoType "$installer" '/^InstallerType:/d'
refuses AMissingField "$locale" '/^License:/d'
refuses ANumberInThePlaceOfAText "$locale" 's/^License:.*/License: 2026/'
refuses ATextThatIsTooLong "$locale" "s/^\(ShortDescription:\).*/\1 $(printf 'a%.0s' {1..257})/"
refuses TheSameTagTwice "$locale" 's/^- photos$/- countdown/'
refuses AnotherAddress manifests/scoop/lumora.json 's/packages\.lumora/other.lumora/'
refuses AnAddressThatIsNone manifests/scoop/lumora.json '/"homepage"/s|/",|/{x}",|'
refuses AMissingHomepage manifests/scoop/lumora.json '/"homepage"/d'
refuses AMissingLicense manifests/scoop/lumora.json '/"license"/d'
refuses ASumOfAnotherPackage manifests/scoop/lumora.json '/"hash"/s/"[0-9a-f]\{64\}"/"'"$(printf 'other' | sha256sum | cut -c 1-64)"'"/'
refuses AShortcutWithoutAName manifests/scoop/lumora.json 's/^\( *"Lumora.scr"\),$/\1/; /^ *"Lumora Screen Saver"$/d'
refuses WhatIsNoJson manifests/scoop/lumora.json '1d'
refuses WrongSums SHA256SUMS '1d'
echo "[  PASSED  ] $passed tests."
[ "$failed" = 0 ]
