# What ./test does with the packages. Sourced behind lib.sh and package.sh.
tried="$root/out/package-test"
# Which build is tried, and what its packages are called.
tried_preset=windows
tried_name=Lumora

# Tries the packages for 32-bit Windows in their place.
try_x86_packages() {
  tried="$root/out/package-test-x86"
  tried_preset=windows-x86
  tried_name=Lumora-x86
}

# Packs the project's version twice, the second time in another folder and from newer copies of the sources, and
# before it a later version for the upgrade. Leaves the build folder at the project's version.
pack_for_test() {
  local build="$root/build-$tried_preset"
  rm -rf "$tried"
  mkdir -p "$tried"
  build_preset "$tried_preset" Lumora LumoraSettings
  first_version=$(version_of_build "$build")
  later_version="${first_version%.*}.$((${first_version##*.} + 1))"
  configure_options=(-DLUMORA_VERSION="$later_version")
  build_preset "$tried_preset" Lumora LumoraSettings
  pack "$build" "$tried_name" "$tried/later" setup
  configure_options=()
  build_preset "$tried_preset" Lumora LumoraSettings
  pack "$build" "$tried_name" "$tried/first" setup
  packing_sources="$tried/deeper/sources"
  mkdir -p "$packing_sources"
  cp -r "$root/packaging" "$root/assets" "$packing_sources/"
  pack "$build" "$tried_name" "$tried/deeper/down/again" setup
  packing_sources=$root
  printf '%s %s\n' "$first_version" "$later_version" >"$tried/versions"
}

# Runs the package tests as a user of their own: in a copy of the Wine prefix that goes away afterwards.
run_package_tests() {
  local status=0 prefix="$tried/prefix" first_version later_version
  read -r first_version later_version <"$tried/versions"
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  cp -a "$WINEPREFIX" "$prefix"
  mkdir -p "$prefix/drive_c/unpacked"
  unzip -q "$tried/first/$tried_name-$first_version.zip" -d "$prefix/drive_c/unpacked"
  cp "$tried/first/$tried_name-$first_version-setup.exe" "$prefix/drive_c/setup.exe"
  cp "$tried/later/$tried_name-$later_version-setup.exe" "$prefix/drive_c/later-setup.exe"
  (
    export WINEPREFIX="$prefix"
    timeout 600 wine "$root/build-$tried_preset/lumora_package_tests.exe" 'C:\setup.exe' 'C:\later-setup.exe' \
      "$first_version" "$later_version" 'C:\unpacked\Lumora' || status=$?
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
    exit "$status"
  ) || status=$?
  rm -rf "$prefix"
  return "$status"
}
