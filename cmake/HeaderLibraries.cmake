# Header-only libraries of the system. They are reached through a folder of links: a cross build must not see the other
# headers that are beside them.
set(header_libraries ${PROJECT_BINARY_DIR}/generated/header_libraries)
file(MAKE_DIRECTORY ${header_libraries})
foreach(library CLI nlohmann)
  find_path(${library}_INCLUDE_DIR ${library} PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  file(CREATE_LINK ${${library}_INCLUDE_DIR}/${library} ${header_libraries}/${library} SYMBOLIC)
endforeach()
add_library(header_libraries INTERFACE)
target_include_directories(header_libraries SYSTEM INTERFACE ${header_libraries})
