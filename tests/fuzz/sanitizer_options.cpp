// How the address sanitizer runs in the fuzzers, which allocate much and for a moment only: it remembers
// fewer callers of each allocation and keeps less of what was freed than it would for a program that runs
// once.
extern "C" const char* __asan_default_options();

extern "C" const char* __asan_default_options() { return "malloc_context_size=1:quarantine_size_mb=16"; }
