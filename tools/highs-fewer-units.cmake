# Included by HiGHS's own project() (CMAKE_PROJECT_INCLUDE): its C++ files are compiled in bundles, which takes half the
# time, as most of it goes into headers that they share.

function(bundle_sources)
  get_target_property(sources highs SOURCES)
  get_target_property(folder highs SOURCE_DIR)
  # The C files, and one that has names of its own for what others declare, can't share a unit.
  list(FILTER sources INCLUDE REGEX "\\.c$|/filereaderlp/reader\\.cpp$")
  foreach(source IN LISTS sources)
    get_filename_component(path "${source}" ABSOLUTE BASE_DIR "${folder}")
    set_source_files_properties("${path}" DIRECTORY "${folder}" PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endforeach()
  set_target_properties(highs PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
endfunction()

cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL bundle_sources)
