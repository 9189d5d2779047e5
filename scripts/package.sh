# How the packages are made: the program folders, the ZIPs, the installers, the lists of what the programs import.
# Sourced behind lib.sh.

# All files of the packages carry one time, that of the commit, so that the same commit makes the same packages.
export SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CMakeLists.txt)}"

# The version that a build folder was set up for. $1: the folder.
version_of_build() {
  local own project
  own=$(sed -n 's/^LUMORA_VERSION:STRING=//p' "$1/CMakeCache.txt")
  project=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt")
  printf '%s\n' "${own:-$project}"
}

# A program folder with the packages' times and rights. $1: build folder, $2: where, as .../Lumora.
stage_program_folder() {
  rm -rf "$2"
  lay_program_folder "$1" "$2"
  # For Windows' own editor of texts.
  sed -e "s/@VERSION@/$(version_of_build "$1")/" -e 's/$/\r/' "$packing_sources/packaging/readme.txt" >"$2/readme.txt"
  cp "$1/LumoraSettings.exe" "$2/../LumoraSettings.exe"
  make_today_settings "$2/zbfaone.ini" "$2/../zbfaone-today.ini"
  chmod 644 "$2"/* "$2"/../*.*
  touch -d "@$SOURCE_DATE_EPOCH" "$2"/* "$2"/../*.*
}

# The settings file with the look of today, which an installer offers beside the classic one. $1: the classic file,
# $2: the file to write. Fails when a key is not there once.
make_today_settings() {
  local key value
  cp "$1" "$2"
  while IFS== read -r key value; do
    if [ "$(grep -c "^$key=" "$2")" != 1 ]; then
      say "packaging/look_today.txt: '$key' does not stand in $1 once"
      return 1
    fi
    sed -i "s/^$key=[^\r]*/$key=$value/" "$2"
  done <"$packing_sources/packaging/look_today.txt"
}

# Where the installer's script, its texts and the assets are.
packing_sources=$root

# $1: the staged Lumora folder, $2: the ZIP to write.
make_zip() {
  rm -f "$2"
  (cd "$1/.." && find Lumora -type f | LC_ALL=C sort | TZ=UTC zip -q -X -D -9 "$2" -@)
}

# For which Windows the installer of a build is. $1: build folder.
setup_target() {
  case $(sed -n 's/^CMAKE_TOOLCHAIN_FILE:[A-Z]*=//p' "$1/CMakeCache.txt") in
    *x86_64.cmake) echo amd64-unicode ;;
    *i686.cmake) echo x86-unicode ;;
    *) say "for which Windows is $1?" && return 1 ;;
  esac
}

# $1: the staged Lumora folder, $2: version, $3: the installer to write, $4: for which Windows (setup_target).
make_setup() {
  local log="$root/out/makensis.log"
  if ! (cd "$packing_sources/packaging" && makensis -V2 -WX -NOCD -INPUTCHARSET UTF8 -DVERSION="$2" -DFOLDER="$1" \
    -DTODAY="$1/../zbfaone-today.ini" \
    -DLAUNCHER="$1/../LumoraSettings.exe" -DOUTPUT="$3" -DTARGET="$4" lumora.nsi) >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
}

# Lists what the programs of a build import, after a check of each name. $1: build folder, $2: list to write.
list_imports() {
  "$root/tests/checks/list_imports.sh" "$1/Lumora.scr" "$1/LumoraSettings.exe" >"$2"
  "$root/tests/checks/check_imports.sh" "$2" >/dev/null || {
    "$root/tests/checks/check_imports.sh" "$2" >&2
    return 1
  }
}

# Packs one build. $1: build folder, $2: the packages' name (Lumora, Lumora-x86), $3: folder to write to,
# $4: "setup" to make an installer as well.
pack() {
  local version target stage="$3/.stage/$2"
  version=$(version_of_build "$1")
  target=$(setup_target "$1")
  mkdir -p "$stage"
  stage_program_folder "$1" "$stage/Lumora"
  make_zip "$stage/Lumora" "$3/$2-$version.zip"
  [ "${4:-}" != setup ] || make_setup "$stage/Lumora" "$version" "$3/$2-$version-setup.exe" "$target"
  list_imports "$1" "$3/$2-$version-imports.txt"
  rm -rf "$3/.stage"
}
