# A room is a folder under src/ that is compiled, with its folders, into one object library, tarq_<room>. What lies in a
# folder posix/ is for systems of that kind alone.

# tarq_room(NAME [DEPENDS ROOM...] [LIBRARIES TARGET...])
function(tarq_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "DEPENDS;LIBRARIES")
  set(folder "${PROJECT_SOURCE_DIR}/src/${name}")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
  if(NOT UNIX)
    list(FILTER sources EXCLUDE REGEX "/posix/[^/]*$")
  endif()

  set(floors_below ${room_DEPENDS})
  foreach(below IN LISTS room_DEPENDS)
    get_property(reached GLOBAL PROPERTY tarq_room_${below})
    list(APPEND floors_below ${reached})
  endforeach()
  list(REMOVE_DUPLICATES floors_below)
  set_property(GLOBAL PROPERTY tarq_room_${name} ${floors_below})
  set_property(GLOBAL APPEND PROPERTY tarq_rooms ${name})

  # Headers share one include root, so that an include names its room; this check is what keeps rooms apart.
  set(stamp "${PROJECT_BINARY_DIR}/rooms/${name}.stamp")
  add_custom_command(OUTPUT "${stamp}"
    COMMAND "${CMAKE_COMMAND}" "-DROOM=${name}" "-DFOLDER=${folder}" "-DALLOWED=${floors_below}" "-DSTAMP=${stamp}"
            -P "${PROJECT_SOURCE_DIR}/cmake/CheckRoomIncludes.cmake"
    DEPENDS ${sources} "${PROJECT_SOURCE_DIR}/cmake/CheckRoomIncludes.cmake"
    COMMENT "Checking the includes of ${name}" VERBATIM)

  add_library(tarq_${name} OBJECT ${sources} "${stamp}")
  set_target_properties(tarq_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(tarq_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/include")
  target_compile_definitions(tarq_${name} PUBLIC TARQ_BUILDING_COMPONENT)
  target_link_libraries(tarq_${name} PRIVATE tarq_options PUBLIC tarq_formatting Threads::Threads ${CMAKE_DL_LIBS} ${room_LIBRARIES})
endfunction()

# Links TARGET with the objects of the rooms named and of all rooms below them.
function(tarq_link_rooms target)
  set(rooms ${ARGN})
  foreach(room IN LISTS ARGN)
    get_property(below GLOBAL PROPERTY tarq_room_${room})
    list(APPEND rooms ${below})
  endforeach()
  list(REMOVE_DUPLICATES rooms)
  list(TRANSFORM rooms PREPEND tarq_)
  target_link_libraries(${target} PRIVATE tarq_options ${rooms})
endfunction()
