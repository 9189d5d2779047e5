# Lumora.scr and the tests that need Windows (or Wine).
set(hardening -fstack-protector-strong)
set(system_libraries gdi32 user32 kernel32 advapi32 shell32 ole32 oleaut32 windowscodecs comctl32 comdlg32
    shlwapi uuid)

target_compile_definitions(lumora_flags INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                           _WIN32_WINNT=0x0A00 WINVER=0x0A00)
# Single-precision arithmetic is rounded to single at every step, as on 64-bit Windows; the older floating-point
# unit would carry more digits on and show other sizes. base/rounding.cpp refuses to compile without it.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_options(lumora_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-msse2> $<$<COMPILE_LANGUAGE:CXX>:-mfpmath=sse>)
endif()
# The same binaries come out whenever they are built and wherever the sources lie.
target_compile_options(lumora_flags INTERFACE -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
target_link_options(lumora_flags INTERFACE -Wl,--no-insert-timestamp)
target_compile_options(lumora_flags INTERFACE ${hardening})
target_link_options(lumora_flags INTERFACE ${hardening})

add_library(lumora_win STATIC ${windows_sources})
target_link_libraries(lumora_win PUBLIC lumora_core ${system_libraries})
set(windows_headers <windows.h> <commctrl.h>)
precompile(lumora_win ${windows_headers})

# What a click or a start runs once is built small; what runs for every pixel, picture and key is built fast. The small
# sources of a library are a target of their own: precompiled headers bring their optimisation along.
set(small_rooms "/src/(auxwin|dialog|forms|startup)/")
function(build_small target)
  get_target_property(small_sources ${target} SOURCES)
  set(fast_sources ${small_sources})
  list(FILTER small_sources INCLUDE REGEX ${small_rooms})
  list(FILTER fast_sources EXCLUDE REGEX ${small_rooms})
  set_property(TARGET ${target} PROPERTY SOURCES ${fast_sources})
  add_library(${target}_small OBJECT ${small_sources})
  target_link_libraries(${target}_small PRIVATE lumora_flags)
  target_compile_options(${target}_small PRIVATE -Os)
  precompile(${target}_small ${ARGN})
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_small>)
endfunction()
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  build_small(lumora_core)
  build_small(lumora_win ${windows_headers})
endif()

add_executable(Lumora WIN32 src/startup/entry_win.cpp ${version_source})
target_compile_definitions(Lumora PRIVATE "LUMORA_VERSION=\"${product_version}\"")
enable_language(RC)
configure_file(src/startup/lumora.rc.in ${CMAKE_BINARY_DIR}/lumora.rc @ONLY)
target_sources(Lumora PRIVATE ${CMAKE_BINARY_DIR}/lumora.rc)
set_source_files_properties(${CMAKE_BINARY_DIR}/lumora.rc PROPERTIES OBJECT_DEPENDS
  "${CMAKE_SOURCE_DIR}/assets/lumora.ico;${CMAKE_SOURCE_DIR}/assets/preview.gif;${CMAKE_SOURCE_DIR}/src/startup/lumora.manifest")
set_target_properties(Lumora PROPERTIES SUFFIX ".scr")
target_link_libraries(Lumora PRIVATE lumora_win)
set(program_link_options -municode -static -s -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  list(APPEND program_link_options -Wl,--high-entropy-va)
else()
  # A large photo needs more than the 2 GB that a 32-bit program has by default.
  list(APPEND program_link_options -Wl,--large-address-aware)
endif()
target_link_options(Lumora PRIVATE ${program_link_options})

# What the Start menu's entry of an installed Lumora runs.
add_executable(LumoraSettings WIN32 src/startup/settings_entry_win.cpp src/startup/settings_entry.rc)
set_source_files_properties(src/startup/settings_entry.rc PROPERTIES OBJECT_DEPENDS
  "${CMAKE_SOURCE_DIR}/src/startup/lumora.manifest")
target_link_libraries(LumoraSettings PRIVATE lumora_flags user32 kernel32)
target_link_options(LumoraSettings PRIVATE ${program_link_options})

# What the program does not use is left out of it, function by function. The tests are linked faster without.
foreach(target lumora_core lumora_core_small lumora_win lumora_win_small Lumora LumoraSettings)
  if(TARGET ${target})
    target_compile_options(${target} PRIVATE
      $<$<COMPILE_LANGUAGE:CXX>:-ffunction-sections> $<$<COMPILE_LANGUAGE:CXX>:-fdata-sections>)
  endif()
endforeach()

if(LUMORA_TESTS)
  add_library(lumora_win_support STATIC EXCLUDE_FROM_ALL ${windows_support_sources})
  target_link_libraries(lumora_win_support PUBLIC lumora_support lumora_win)

  # The tests' windows are those of the program: with its manifest, in the system's visual style.
  add_executable(lumora_win_tests ${windows_test_sources} tests/support/win_tests.rc)
  target_link_libraries(lumora_win_tests PRIVATE lumora_win_support gtest_main)
  target_compile_options(lumora_win_tests PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  precompile(lumora_win_tests ${windows_headers} ${test_headers})
  # What a crash leaves of the stack must do for its code, as it must in the program.
  set_source_files_properties(tests/startup/crash_guard_win_test.cpp PROPERTIES
    COMPILE_OPTIONS -O2 SKIP_PRECOMPILE_HEADERS ON)
  target_link_options(lumora_win_tests PRIVATE -static)

  # Stand in for libraries of the system in the end-to-end tests.
  foreach(stand_in password_stand_in marking_stand_in)
    add_library(${stand_in} MODULE tests/e2e/stand_ins/${stand_in}_win.cpp)
    set_target_properties(${stand_in} PROPERTIES PREFIX "")
    target_link_libraries(${stand_in} PRIVATE lumora_flags)
    target_link_options(${stand_in} PRIVATE -static)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
      # The system's libraries export plain names.
      target_link_options(${stand_in} PRIVATE -Wl,--kill-at)
    endif()
  endforeach()

  file(GLOB bench_sources CONFIGURE_DEPENDS tests/bench/*.cpp)
  add_executable(lumora_bench ${bench_sources} tests/e2e/dialog_hands.cpp tests/e2e/keyboard.cpp
                 tests/e2e/pointer.cpp tests/e2e/program_folder.cpp tests/e2e/running_program.cpp
                 tests/support/win_tests.rc)
  target_link_libraries(lumora_bench PRIVATE lumora_win_support ntdll)
  target_link_options(lumora_bench PRIVATE -static)

  file(GLOB e2e_sources CONFIGURE_DEPENDS tests/e2e/*.cpp)
  add_executable(lumora_e2e ${e2e_sources})
  target_link_libraries(lumora_e2e PRIVATE lumora_win_support gtest ntdll)
  target_compile_options(lumora_e2e PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  reuse_precompiled(lumora_e2e lumora_win_tests)
  target_link_options(lumora_e2e PRIVATE -static)
  add_dependencies(lumora_e2e password_stand_in marking_stand_in)

  file(GLOB package_test_sources CONFIGURE_DEPENDS tests/package/*.cpp)
  add_executable(lumora_package_tests ${package_test_sources} tests/e2e/dialog_hands.cpp
                 tests/e2e/keyboard.cpp tests/e2e/pointer.cpp tests/e2e/running_program.cpp)
  target_link_libraries(lumora_package_tests PRIVATE lumora_win_support gtest version)
  target_compile_options(lumora_package_tests PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  reuse_precompiled(lumora_package_tests lumora_win_tests)
  target_link_options(lumora_package_tests PRIVATE -static)
endif()
