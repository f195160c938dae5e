# Warnings are errors in our own targets; code that tools or other projects wrote is left alone.
# -Wrestrict of this compiler (12) misreads insertions into its own string class, so it stays a warning that is off.
function(qvr_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wformat=2 -Werror
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endfunction()

# Most of the time that a file takes to compile goes into headers of the standard library: precompiled once for what
# users get, and once for tests. A target with other macros or warnings than these cannot use them.
file(CONFIGURE OUTPUT generated/headers.cpp CONTENT "")
foreach(headers product_headers test_headers)
  add_library(${headers} OBJECT EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/generated/headers.cpp)
  target_precompile_headers(${headers} PRIVATE
    <algorithm> <functional> <memory> <optional> <string> <string_view> <variant> <vector>)
  qvr_warnings(${headers})
  target_compile_options(${headers} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endforeach()

function(qvr_headers target headers)
  target_precompile_headers(${target} REUSE_FROM ${headers})
  # Without it ccache keeps nothing.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

# What users get.
function(qvr_product target)
  qvr_warnings(${target})
  target_compile_options(${target} PRIVATE ${QVR_SANITIZE_PRODUCT})
  # The checked build does without precompiled headers and so shows that each file includes what it needs.
  if(NOT QVR_SANITIZE)
    qvr_headers(${target} product_headers)
  endif()
endfunction()

# A test program or a part of it: what it tests is optimised as it will be used, the test code itself only costs time to
# compile so.
target_compile_options(test_headers PRIVATE -O0)
function(qvr_test_code target)
  qvr_warnings(${target})
  target_compile_options(${target} PRIVATE -O0)
  qvr_headers(${target} test_headers)
endfunction()
