# The version of the programs as a header, for whoever links program_version.
configure_file(${CMAKE_CURRENT_LIST_DIR}/program_version.h.in ${CMAKE_BINARY_DIR}/version/program_version.h @ONLY)
add_library(program_version INTERFACE)
target_include_directories(program_version INTERFACE ${CMAKE_BINARY_DIR}/version)
