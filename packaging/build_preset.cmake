# Builds targets of another preset: cmake -D PRESET=win32 -D "TARGETS=a;b" -P build_preset.cmake
cmake_path(SET root NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/..")
if(NOT EXISTS ${root}/build/${PRESET}/build.ninja)
  execute_process(COMMAND ${CMAKE_COMMAND} --preset ${PRESET} WORKING_DIRECTORY ${root} COMMAND_ERROR_IS_FATAL ANY)
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build --preset ${PRESET} --target ${TARGETS} WORKING_DIRECTORY ${root}
                COMMAND_ERROR_IS_FATAL ANY)
