# What ./test does with the packages. Sourced behind lib.sh and package.sh.
tried="$root/out/package-test"

# Packs the project's version twice, the second time in another folder and from newer copies of the sources, and
# before it a later version for the upgrade. Leaves the build folder at the project's version.
pack_for_test() {
  local version
  rm -rf "$tried"
  mkdir -p "$tried"
  build_preset windows Lumora LumoraSettings
  version=$(version_of_build "$root/build-windows")
  later_version="${version%.*}.$((${version##*.} + 1))"
  configure_options=(-DLUMORA_VERSION="$later_version")
  build_preset windows Lumora LumoraSettings
  pack "$root/build-windows" Lumora "$tried/later" setup
  configure_options=()
  build_preset windows Lumora LumoraSettings
  pack "$root/build-windows" Lumora "$tried/first" setup
  packing_sources="$tried/deeper/sources"
  mkdir -p "$packing_sources"
  cp -r "$root/packaging" "$root/assets" "$packing_sources/"
  pack "$root/build-windows" Lumora "$tried/deeper/down/again" setup
  packing_sources=$root
  first_version=$version
}

# Runs the package tests as a user of their own: in a copy of the Wine prefix that goes away afterwards.
run_package_tests() {
  local status=0 prefix="$tried/prefix"
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  cp -a "$WINEPREFIX" "$prefix"
  mkdir -p "$prefix/drive_c/unpacked"
  unzip -q "$tried/first/Lumora-$first_version.zip" -d "$prefix/drive_c/unpacked"
  cp "$tried/first/Lumora-$first_version-setup.exe" "$prefix/drive_c/setup.exe"
  cp "$tried/later/Lumora-$later_version-setup.exe" "$prefix/drive_c/later-setup.exe"
  (
    export WINEPREFIX="$prefix"
    timeout 600 wine "$root/build-windows/lumora_package_tests.exe" 'C:\setup.exe' 'C:\later-setup.exe' \
      "$first_version" "$later_version" 'C:\unpacked\Lumora' || status=$?
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
    exit "$status"
  ) || status=$?
  rm -rf "$prefix"
  return "$status"
}
