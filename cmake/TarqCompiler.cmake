# Language level, warnings and sanitizers, for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_library(tarq_options INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(tarq_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Werror)
  target_compile_options(tarq_options INTERFACE
    "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual;-Wold-style-cast>")
endif()
if(TARQ_SANITIZE)
  add_compile_options(-fsanitize=${TARQ_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARQ_SANITIZE})
endif()

# Headers that don't change and that most files include are read once for all targets with the same flags. A file still
# includes what it uses: the fuzz preset, which Clang compiles, does without.
set(tarq_standard_headers <algorithm> <array> <cmath> <cstddef> <cstdint> <cstring> <functional> <limits> <memory>
    <optional> <span> <string> <string_view> <utility> <vector>)

# tarq_share_headers(TARGET OWNER HEADER...): OWNER is the target that precompiles the headers for all that name it.
function(tarq_share_headers target owner)
  if(target STREQUAL owner)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  else()
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()
