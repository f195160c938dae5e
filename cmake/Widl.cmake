# Type libraries and headers from IDL with Wine's compiler.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(widl_prefix x86_64-w64-mingw32)
  set(wine_libraries /usr/lib/x86_64-linux-gnu/wine/x86_64-windows)
else()
  set(widl_prefix i686-w64-mingw32)
  set(wine_libraries /usr/lib/i386-linux-gnu/wine/i386-windows)
endif()
find_program(WIDL_EXECUTABLE ${widl_prefix}-widl REQUIRED)
# Reproducible builds: widl writes a timestamp into each type library, as a number and as text in the local time zone,
# and ignores SOURCE_DATE_EPOCH. It runs under a fixed clock instead, set to SOURCE_DATE_EPOCH or to a built-in time.
find_program(FAKETIME_EXECUTABLE faketime REQUIRED)
set(QVR_SOURCE_DATE 1793491200)  # 2.10.24: 1 November 2026, 0:00 UTC
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(QVR_SOURCE_DATE $ENV{SOURCE_DATE_EPOCH})
endif()
set(WIDL_COMMAND ${CMAKE_COMMAND} -E env TZ=UTC LC_ALL=C FAKETIME_FMT=%s
    ${FAKETIME_EXECUTABLE} -f ${QVR_SOURCE_DATE} ${WIDL_EXECUTABLE})
set(WIDL_INCLUDES -I/usr/include/wine/wine/windows -L${wine_libraries})

# Compiles IDL to generated/<name>.tlb and generated/<name>.h. `DEPENDS` names what it imports,
# `INCLUDES` the folders of it.
function(qvr_idl idl)
  cmake_parse_arguments(arg "" "" "DEPENDS;INCLUDES" ${ARGN})
  list(TRANSFORM arg_INCLUDES PREPEND -I)
  cmake_path(GET idl STEM name)
  set(out ${PROJECT_BINARY_DIR}/generated)
  add_custom_command(
    OUTPUT ${out}/${name}.tlb ${out}/${name}.h
    COMMAND ${WIDL_COMMAND} -t -o ${out}/${name}.tlb ${WIDL_INCLUDES} -I${out} -L${out} ${arg_INCLUDES} ${idl}
    COMMAND ${WIDL_COMMAND} -h -o ${out}/${name}.h ${WIDL_INCLUDES} -I${out} -L${out} ${arg_INCLUDES} ${idl}
    DEPENDS ${idl} ${arg_DEPENDS}
    VERBATIM)
endfunction()
