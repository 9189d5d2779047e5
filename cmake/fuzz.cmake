# The fuzzers: one program for each target, the code under test instrumented for coverage and by the sanitizers.
# Only the fuzzers are built here.
set_target_properties(lumora_core PROPERTIES EXCLUDE_FROM_ALL ON)

set(fuzzed_sources ${portable_sources})
list(FILTER fuzzed_sources INCLUDE REGEX
     "/src/((base|os|pictures|settings|library)/|saver/caption_template\\.cpp|startup/command_line\\.cpp)")

set(fuzz_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
file(GLOB fuzz_maker_sources CONFIGURE_DEPENDS tests/fuzz/makers/*.cpp)
add_library(lumora_fuzzed STATIC ${fuzzed_sources} ${fuzz_maker_sources} tests/support/windows_1252.cpp
            tests/support/jpeg_builder.cpp tests/support/gif_builder.cpp tests/support/photo_builder.cpp)
target_include_directories(lumora_fuzzed PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(lumora_fuzzed PUBLIC ${fuzz_sanitizers} PRIVATE -fsanitize=fuzzer-no-link)
target_link_options(lumora_fuzzed PUBLIC -fsanitize=fuzzer,address,undefined)
target_link_libraries(lumora_fuzzed PUBLIC lumora_flags)

# What handles texts compares characters all day; for it the dictionaries say which words there are, and the fuzzer
# need not learn them from every comparison.
set(fuzz_without_comparisons -fno-sanitize-coverage=trace-cmp)
set(fuzzed_text_sources ${fuzzed_sources})
list(FILTER fuzzed_text_sources INCLUDE REGEX "/src/(base/text|os/[^/]*|settings/[^/]*)\\.cpp")
set_source_files_properties(${fuzzed_text_sources} PROPERTIES COMPILE_OPTIONS "${fuzz_without_comparisons}")

# The second readings are not looked at for coverage: what is new to them alone is no news.
file(GLOB fuzz_oracle_sources CONFIGURE_DEPENDS tests/fuzz/oracles/*.cpp)
add_library(lumora_fuzz_oracles STATIC ${fuzz_oracle_sources} tests/support/plain_picture_facts.cpp
            tests/support/plain_caption.cpp)
target_link_libraries(lumora_fuzz_oracles PUBLIC lumora_fuzzed)

add_library(lumora_fuzz_options OBJECT tests/fuzz/sanitizer_options.cpp)

file(GLOB fuzz_sources CONFIGURE_DEPENDS tests/fuzz/*_fuzz.cpp)
foreach(source ${fuzz_sources})
  get_filename_component(name ${source} NAME_WE)
  add_executable(${name} ${source})
  target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link ${fuzz_without_comparisons})
  target_link_libraries(${name} PRIVATE lumora_fuzz_oracles lumora_fuzz_options)
endforeach()
