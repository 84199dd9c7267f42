# Fails when a file of ROOM (in FOLDER) includes a room that is neither itself nor in ALLOWED; else touches STAMP.

cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE files "${FOLDER}/*.cpp" "${FOLDER}/*.h")
get_filename_component(source_root "${FOLDER}" DIRECTORY)
foreach(file IN LISTS files)
  file(STRINGS "${file}" lines REGEX "^#include \"")
  foreach(line IN LISTS lines)
    # Public headers of a room lie in include/tarq/.
    string(REGEX REPLACE "^#include \"(tarq/)?([^/\"]*).*" "\\2" other "${line}")
    if(NOT IS_DIRECTORY "${source_root}/${other}" OR other STREQUAL ROOM OR other IN_LIST ALLOWED)
      continue()
    endif()
    string(REPLACE ";" ", " allowed_text "${ALLOWED}")
    message(FATAL_ERROR "${file}: ${line}\nThe room '${ROOM}' may include only: ${allowed_text}")
  endforeach()
endforeach()
file(TOUCH "${STAMP}")
