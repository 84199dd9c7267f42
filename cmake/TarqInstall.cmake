# `cmake --install`: programs, libraries, public headers, and the package that find_package(tarq) finds.

include(CMakePackageConfigHelpers)

install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/tarq" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")

# The engine, the MathProg library and the page lie beside the component, where the component looks first.
install(TARGETS tarqcom EXPORT tarq
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(TARGETS tarq_engine_highs LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(TARGETS tarq_command RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
# Programs for the component alone, which looks for them from its own folder.
set(own_programs_folder "${CMAKE_INSTALL_LIBDIR}/../libexec/tarq")
if(TARQ_BUILD_LANGUAGES)
  install(TARGETS tarq_mathprog_glpk LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS tarq_ampl_driver RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(TARGETS tarq_stub tarq_mathprog_reader tarq_ampl_translator RUNTIME DESTINATION "${own_programs_folder}")
endif()
if(TARQ_BUILD_PAGE)
  install(TARGETS tarq_page_qt LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS tarq_page tarq_page_in_host tarq_page_host
    RUNTIME DESTINATION "${own_programs_folder}" LIBRARY DESTINATION "${own_programs_folder}")
endif()
install(FILES LICENSE LICENSES/GPL-3.0.txt README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY examples/ DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples")

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/tarq")
install(EXPORT tarq NAMESPACE tarq:: FILE tarqTargets.cmake DESTINATION "${package_folder}")
file(WRITE "${PROJECT_BINARY_DIR}/tarqConfig.cmake" "include(\"\${CMAKE_CURRENT_LIST_DIR}/tarqTargets.cmake\")\n")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/tarqConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/tarqConfig.cmake" "${PROJECT_BINARY_DIR}/tarqConfigVersion.cmake"
  DESTINATION "${package_folder}")
