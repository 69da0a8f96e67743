# What makes a build from nothing shorter. Headers that nearly every source of a target includes are
# read once for all of them; tests, whose own code need not be fast, are compiled without optimising.
set(VARNEL_STANDARD_HEADERS <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <set>
    <span> <string> <string_view> <utility> <vector>)

# Lets the test program or test library `target` share the headers given beside the standard ones.
function(varnel_compile_tests_quickly target)
  target_compile_options(${target} PRIVATE -O0)
  target_precompile_headers(${target} PRIVATE ${ARGN} ${VARNEL_STANDARD_HEADERS})
endfunction()

# Tells one source where the test files of other makers lie; a definition for the whole target would
# let no two checkouts share what is compiled.
function(varnel_tell_corpus source)
  set_source_files_properties(
    ${source} PROPERTIES SKIP_PRECOMPILE_HEADERS ON
                         COMPILE_DEFINITIONS VARNEL_CORPUS="${PROJECT_SOURCE_DIR}/tests/corpus")
endfunction()
