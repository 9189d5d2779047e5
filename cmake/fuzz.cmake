# The fuzzers: one program for each target, the code under test instrumented for coverage and by the sanitizers.
# Only the fuzzers are built here.
set_target_properties(lumora_core PROPERTIES EXCLUDE_FROM_ALL ON)

# The code under test and what it stands on.
set(fuzzed_sources
    src/base/calendar.cpp src/base/number_text.cpp src/base/rounding.cpp src/library/kept_file.cpp
    src/library/picture_index.cpp src/library/sealed.cpp src/library/show_state.cpp
    src/pictures/gif_first_frame.cpp src/pictures/jpeg_head.cpp src/pictures/lzw_decoder.cpp
    src/pictures/noted_text.cpp src/pictures/picture_facts.cpp src/pictures/picture_header.cpp
    src/pictures/tiff_block.cpp src/pictures/xml_reader.cpp src/pictures/xmp_titles.cpp
    src/saver/caption_template.cpp src/startup/command_line.cpp)
# These compare characters all day; for them the dictionaries say which words there are, and the fuzzer need not learn
# them from every comparison.
set(fuzzed_text_sources
    src/base/text.cpp src/os/escaping_code_page.cpp src/os/paths.cpp src/settings/ini_document.cpp
    src/settings/ini_line.cpp src/settings/load_settings.cpp src/settings/settings_file.cpp)
set(fuzz_without_comparisons -fno-sanitize-coverage=trace-cmp)

set(fuzz_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
file(GLOB fuzz_maker_sources CONFIGURE_DEPENDS tests/fuzz/makers/*.cpp)
add_library(lumora_fuzzed_texts OBJECT ${fuzzed_text_sources})
target_compile_options(lumora_fuzzed_texts PRIVATE ${fuzz_sanitizers} -fsanitize=fuzzer-no-link
                       ${fuzz_without_comparisons})
target_link_libraries(lumora_fuzzed_texts PRIVATE lumora_flags)
add_library(lumora_fuzzed STATIC ${fuzzed_sources} $<TARGET_OBJECTS:lumora_fuzzed_texts> ${fuzz_maker_sources}
            tests/support/windows_1252.cpp tests/support/jpeg_builder.cpp tests/support/photo_builder.cpp)
target_include_directories(lumora_fuzzed PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(lumora_fuzzed PUBLIC ${fuzz_sanitizers} PRIVATE -fsanitize=fuzzer-no-link)
target_link_options(lumora_fuzzed PUBLIC -fsanitize=fuzzer,address,undefined)
target_link_libraries(lumora_fuzzed PUBLIC lumora_flags)

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
