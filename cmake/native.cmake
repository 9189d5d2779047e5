# The portable code, its tests and the tools, on the machine that builds.

if(LUMORA_TESTS)
  # Millions of random events go through the standard library's smallest functions.
  set(inline_small $<$<CXX_COMPILER_ID:GNU>:-finline-small-functions>)
  target_compile_options(lumora_core PRIVATE ${inline_small})
  target_compile_options(lumora_support PRIVATE ${inline_small})

  # What several files have alike is linked from the first of them: from the code under test, which is optimised.
  add_executable(lumora_tests $<TARGET_OBJECTS:lumora_core> $<TARGET_OBJECTS:lumora_support> ${test_sources})
  target_link_libraries(lumora_tests PRIVATE lumora_support gtest_main)
  # The code under test has both sanitizers; the tests themselves are compiled quickly.
  target_compile_options(lumora_tests PRIVATE -O0 -fno-sanitize=undefined)
  precompile(lumora_tests ${test_headers})
  # Where the test itself computes long, it is compiled as its subject is.
  set(long_computations ${test_sources})
  list(FILTER long_computations INCLUDE REGEX "_(monkey|random)_test\\.cpp$")
  set_source_files_properties(${long_computations} PROPERTIES
    COMPILE_OPTIONS -O1 SKIP_PRECOMPILE_HEADERS ON)

  # What runs on two threads and what it stands on: a program of its own, so that the thread sanitizer's build
  # stays small.
  file(GLOB threaded_sources CONFIGURE_DEPENDS
       src/base/area_average.cpp src/base/average_row.cpp src/base/bitmap.cpp src/base/premultiply.cpp
       src/base/resample.cpp src/base/rounding.cpp src/os/worker_thread.cpp src/pictures/ahead_loader.cpp
       src/pictures/picture.cpp tests/os/worker_thread_test.cpp tests/pictures/ahead_loader_threads_test.cpp)
  add_executable(lumora_thread_tests EXCLUDE_FROM_ALL ${threaded_sources})
  target_include_directories(lumora_thread_tests PRIVATE tests)
  target_link_libraries(lumora_thread_tests PRIVATE lumora_flags gtest_main)
endif()

file(GLOB picture_sources CONFIGURE_DEPENDS tools/pictures/*.cpp)
add_library(tool_pictures STATIC EXCLUDE_FROM_ALL ${picture_sources})
target_include_directories(tool_pictures PUBLIC tools)
find_package(ZLIB REQUIRED)
target_link_libraries(tool_pictures PUBLIC lumora_core PRIVATE ZLIB::ZLIB)

file(GLOB tool_sources CONFIGURE_DEPENDS tools/*.cpp)
foreach(source ${tool_sources})
  get_filename_component(name ${source} NAME_WE)
  add_executable(${name} ${source})
  target_link_libraries(${name} PRIVATE lumora_core tool_pictures)
endforeach()
