#!/usr/bin/env bash
# What runs inside the 32-bit system, with a display and a Wine prefix of its own.
#   run PROGRAM [arguments]   a program of the build for 32-bit Windows
#   end-to-end                the end-to-end tests on out/Lumora-x86
#   packages                  the package tests on what pack_for_test has packed
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
what=$1
shift
xvfb_pid=
trap stop_show_machine EXIT
start_display 1920x1080
offer_smaller_screen
prepare_wine
case $what in
  run)
    program=$root/build-windows-x86/$1
    shift
    timeout 1800 wine "$program" "$@"
    ;;
  end-to-end)
    cp -r "$root/out/Lumora-x86" "$HOME/Lumora"
    folder=$HOME/Lumora
    timeout 2400 wine "$root/build-windows-x86/lumora_e2e.exe" "$(windows_path "$folder")" --gtest_filter=-*SeveralScreens.*
    ;;
  packages)
    source "$root/scripts/package_test.sh"
    try_x86_packages
    run_package_tests
    ;;
  *) say "unknown: $what" && exit 2 ;;
esac
