# GoogleTest is built from the distribution's source package, so that it is made with our compilers.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_disable_pthreads ON CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
include(GoogleTest)
# Its assertions are statements that begin with `if`; behind an `if` of a test's own g++ would take the
# braces of both for doubtful.
target_compile_options(gtest INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-dangling-else>)
