# The interpreter that the Python package is built for and tested with.

# The system's own interpreter, not whatever a user's shell finds first: its packages are the ones ./dev installs.
if(NOT DEFINED Python3_EXECUTABLE AND EXISTS /usr/bin/python3)
  set(Python3_EXECUTABLE /usr/bin/python3)
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter Development.Module)
set(PYBIND11_FINDPYTHON OFF)
set(PYTHON_EXECUTABLE "${Python3_EXECUTABLE}")
find_package(pybind11 REQUIRED)

# Where the system's interpreter looks for packages below /usr/local, the default prefix.
set(TARQ_PYTHON_INSTALL_FOLDER "lib/python${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}/dist-packages"
  CACHE STRING "Where the Python package is installed, below the prefix")

# How the package is run from the build folder. A sanitizer must be loaded before the interpreter, which
# isn't built with it; its leaks aren't
# ours either.
set(tarq_python_environment "PYTHONPATH=${PROJECT_BINARY_DIR}/python" "PYTHONDONTWRITEBYTECODE=1")
if(TARQ_SANITIZE)
  set(runtimes "")
  foreach(pair IN ITEMS "address:libasan.so" "undefined:libubsan.so" "thread:libtsan.so")
    string(REPLACE ":" ";" pair "${pair}")
    list(GET pair 0 sanitizer)
    list(GET pair 1 runtime)
    if(TARQ_SANITIZE MATCHES "${sanitizer}")
      execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${runtime}"
        OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
      list(APPEND runtimes "${found}")
    endif()
  endforeach()
  list(JOIN runtimes ":" preloaded)
  list(APPEND tarq_python_environment "LD_PRELOAD=${preloaded}" "PYTHONMALLOC=malloc"
    "ASAN_OPTIONS=detect_leaks=0" "TSAN_OPTIONS=report_thread_leaks=0:intercept_tls_get_addr=0")
endif()
