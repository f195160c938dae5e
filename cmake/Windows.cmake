# What every Windows binary of this project has in common: no run-time files beside it, addresses that an attacker
# cannot know, the same bytes from the same sources.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0601 WINVER=0x0601)
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
# Small: only what is called, and code made for speed only where somebody would notice; see qvr_fast.
set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG")
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-static -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat -Wl,--no-insert-timestamp)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  add_link_options(-Wl,--high-entropy-va)
endif()

# Source files of the current folder that are worth their size: they run once for each row, command or call.
# Aligning functions and jumps made no difference that could be told from chance, but in size.
function(qvr_fast)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS
    "$<$<CONFIG:Release>:-O2;-fno-align-functions;-fno-align-jumps>")
endfunction()

# For a DLL with standard entry points: plain names also where the calling convention decorates them.
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
