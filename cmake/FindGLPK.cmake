# GLPK, which brings no package file of its own: the target GLPK::GLPK.

find_path(GLPK_INCLUDE_DIR glpk.h PATH_SUFFIXES glpk)
find_library(GLPK_LIBRARY glpk)
mark_as_advanced(GLPK_INCLUDE_DIR GLPK_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(GLPK REQUIRED_VARS GLPK_LIBRARY GLPK_INCLUDE_DIR)

if(GLPK_FOUND AND NOT TARGET GLPK::GLPK)
  add_library(GLPK::GLPK UNKNOWN IMPORTED)
  set_target_properties(GLPK::GLPK PROPERTIES
    IMPORTED_LOCATION "${GLPK_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${GLPK_INCLUDE_DIR}")
endif()
