# The fuzzers: one program for each target, the code under test instrumented for coverage and by the sanitizers.
# Only the fuzzers are built here.
set_target_properties(lumora_core PROPERTIES EXCLUDE_FROM_ALL ON)

set(fuzzed_sources ${portable_sources})
list(FILTER fuzzed_sources INCLUDE REGEX
     "/src/((base|os|pictures|settings|library)/|saver/caption_template\\.cpp|startup/command_line\\.cpp)")

set(fuzz_instrumentation -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
add_library(lumora_fuzzed STATIC ${fuzzed_sources} tests/support/windows_1252.cpp tests/support/jpeg_builder.cpp
            tests/support/gif_builder.cpp tests/support/photo_builder.cpp tests/support/plain_picture_facts.cpp
            tests/support/plain_caption.cpp)
target_include_directories(lumora_fuzzed PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(lumora_fuzzed PUBLIC ${fuzz_instrumentation})
target_link_options(lumora_fuzzed PUBLIC -fsanitize=fuzzer,address,undefined)
target_link_libraries(lumora_fuzzed PUBLIC lumora_flags)

file(GLOB fuzz_sources CONFIGURE_DEPENDS tests/fuzz/*_fuzz.cpp)
file(GLOB fuzz_support_sources CONFIGURE_DEPENDS tests/fuzz/oracles/*.cpp)
target_sources(lumora_fuzzed PRIVATE ${fuzz_support_sources})
foreach(source ${fuzz_sources})
  get_filename_component(name ${source} NAME_WE)
  add_executable(${name} ${source})
  target_link_libraries(${name} PRIVATE lumora_fuzzed)
endforeach()
