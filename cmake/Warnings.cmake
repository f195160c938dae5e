# Warnings are errors in our own targets; code that tools or other projects wrote is left alone.
# -Wrestrict of this compiler (12) misreads insertions into its own string class, so it stays a warning that is off.
function(qvr_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wformat=2 -Werror
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endfunction()

# A test program: what it tests is optimised as it will be used, the test code itself only costs time to compile so, or
# to describe each of its variables to a debugger. Most of that time goes into the headers that all of them need.
function(qvr_test_program target)
  qvr_warnings(${target})
  target_compile_options(${target} PRIVATE -O0 $<$<NOT:$<CONFIG:Release>>:-g1>
    $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)  # without it ccache keeps nothing
  target_precompile_headers(${target} PRIVATE
    <gtest/gtest.h> <algorithm> <functional> <memory> <optional> <string> <string_view> <variant> <vector>)
endfunction()
