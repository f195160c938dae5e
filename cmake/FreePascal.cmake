# Programs in Pascal, for which there is a cross compiler for 64-bit Windows only. Its units are compiled once for each
# build folder, which the programs are therefore built in one after the other. qvr_pascal(PROGRAM SOURCE UNIT...)
find_program(QVR_FREE_PASCAL ppcx64 REQUIRED)
set_property(GLOBAL APPEND PROPERTY JOB_POOLS pascal=1)
function(qvr_pascal program source)
  set(built ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${program}.exe)
  set(cross_build ${PROJECT_SOURCE_DIR}/examples/hosts/pascal/cross-build.sh)
  add_custom_command(
    OUTPUT ${built}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${cross_build} ${PROJECT_BINARY_DIR}/pascal ${source} ${built}
    DEPENDS ${cross_build} ${source} ${ARGN}
    JOB_POOL pascal VERBATIM)
  add_custom_target(${program} ALL DEPENDS ${built})
endfunction()
