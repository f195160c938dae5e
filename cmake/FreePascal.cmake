# Programs in Pascal. Debian's compiler makes 64-bit Windows programs; its 32-bit one, for 32-bit ones, cannot be
# installed beside it and is unpacked into the build folder by tools/setup.sh. The compiler's units are compiled once for
# each build folder, which the programs are therefore built in one after the other. qvr_pascal(PROGRAM SOURCE UNIT...)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  find_program(QVR_FREE_PASCAL ppcx64 REQUIRED)
else()
  set(QVR_FREE_PASCAL ${PROJECT_SOURCE_DIR}/build/pascal32/ppc386)
endif()
set_property(GLOBAL APPEND PROPERTY JOB_POOLS pascal=1)
function(qvr_pascal program source)
  set(built ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${program}.exe)
  set(cross_build ${PROJECT_SOURCE_DIR}/examples/hosts/pascal/cross-build.sh)
  add_custom_command(
    OUTPUT ${built}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${cross_build} ${QVR_FREE_PASCAL} ${PROJECT_BINARY_DIR}/pascal ${source} ${built}
    DEPENDS ${cross_build} ${source} ${ARGN}
    JOB_POOL pascal VERBATIM)
  add_custom_target(${program} ALL DEPENDS ${built})
endfunction()
