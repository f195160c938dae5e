# Flags of all Windows binaries: static run-time, ASLR and DEP, reproducible output.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0601 WINVER=0x0601)
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
# The same optimisation level as natively.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
add_link_options(-static -Wl,--dynamicbase -Wl,--nxcompat -Wl,--no-insert-timestamp)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  add_link_options(-Wl,--high-entropy-va)
endif()

# A DLL with COM's entry points, exported undecorated in spite of stdcall.
function(qvr_dll target definition)
  set_target_properties(${target} PROPERTIES PREFIX "" RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
  target_sources(${target} PRIVATE ${definition})
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_link_options(${target} PRIVATE -Wl,--kill-at -Wl,--enable-stdcall-fixup)
  endif()
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    target_link_options(${target} PRIVATE -s)
  endif()
endfunction()
