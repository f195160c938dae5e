# Warnings are errors in our own targets, not in generated and third-party code. -Wrestrict of g++ 12 has false
# positives for std::string::insert, so it is off.
function(qvr_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wformat=2 -Werror
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endfunction()

# Precompiled headers: most of the compile time is headers of the standard library. One set for product code, one for
# tests. A target with other macros or flags cannot use them.
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
  # ccache requires it for precompiled headers.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

# Product code. It tells the trace which file is meant by its place in the sources, so that equal sources make equal
# bytes, also through a compiler cache that makes paths relative; all of a Windows build does.
set(QVR_PRODUCT_OPTIONS ${QVR_SANITIZE_PRODUCT})
if(NOT WIN32)
  file(RELATIVE_PATH back_to_sources ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR})
  list(APPEND QVR_PRODUCT_OPTIONS -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${back_to_sources}=./
       -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
endif()
function(qvr_product target)
  qvr_warnings(${target})
  target_compile_options(${target} PRIVATE ${QVR_PRODUCT_OPTIONS})
  # Without precompiled headers the sanitizer build shows that each file includes what it needs.
  if(NOT QVR_SANITIZE)
    qvr_headers(${target} product_headers)
  endif()
endfunction()

# Test code: the library is optimised as for users, the tests are not, which compiles faster.
target_compile_options(test_headers PRIVATE -O0)
function(qvr_test_code target)
  qvr_warnings(${target})
  target_compile_options(${target} PRIVATE -O0)
  qvr_headers(${target} test_headers)
endfunction()
