# The packages' sums, and the manifests for Windows' package managers, made from the templates in packaging/manifests/.
# Sourced behind package.sh.

# Where a version's packages are published. $1: the version.
download_place() { printf 'https://www.lumora.example/download/%s\n' "$1"; }

# The names of the packages of a version, which people download. $1: the version.
package_names() {
  printf '%s\n' "Lumora-$1-setup.exe" "Lumora-$1.zip" "Lumora-x86-$1-setup.exe" "Lumora-x86-$1.zip"
}

# $1: the packages' folder, $2: their version.
write_sums() {
  local names
  mapfile -t names < <(package_names "$2")
  (cd "$1" && sha256sum "${names[@]}" >SHA256SUMS)
}

# $1: template, $2: what it becomes, $3: the packages' folder, $4: their version, $5: where they are downloaded from.
fill_manifest() {
  local text name sum
  text=$(<"$1")
  text=${text//@VERSION@/$4}
  text=${text//@URL@/${5%/}}
  text=${text//@DATE@/$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)}
  for name in $(package_names "$4"); do
    sum=$(awk -v name="$name" '$2 == name { print $1 }' "$3/SHA256SUMS")
    text=${text//"@SHA256 $name@"/$sum}
  done
  printf '%s\n' "$text" >"$2"
}

# Writes manifests/winget and manifests/scoop in the packages' folder, after SHA256SUMS, and checks them. $1: the folder,
# $2: the version, $3: where the packages are downloaded from.
make_manifests() {
  local folder="$1/manifests" templates="$root/packaging/manifests" part
  rm -rf "$folder"
  mkdir -p "$folder/winget" "$folder/scoop"
  fill_manifest "$templates/winget.version.yaml" "$folder/winget/Lumora.ScreenSaver.yaml" "$@"
  for part in installer locale.en-US; do
    fill_manifest "$templates/winget.$part.yaml" "$folder/winget/Lumora.ScreenSaver.$part.yaml" "$@"
  done
  fill_manifest "$templates/scoop.json" "$folder/scoop/lumora.json" "$@"
  need_packages "checking the manifests" "${manifest_packages[@]}"
  "$root/tests/checks/check_manifests.py" "$1" "$2" "$3" >"$root/out/manifests.log" || {
    cat "$root/out/manifests.log" >&2
    return 1
  }
}
