# GoogleTest as the targets GTest::gtest and GTest::gtest_main, for every toolchain: the compiled
# package, or else the installed sources, since no distribution packages it for mingw-w64.
set(TALLYREX_GOOGLETEST_SOURCES /usr/src/googletest
    CACHE PATH "The sources of GoogleTest (in Debian the package googletest)")

# The libraries of the build machine do not link with what a cross compiler makes.
if(CMAKE_CROSSCOMPILING)
  set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
endif()
find_package(GTest QUIET)
if(GTest_FOUND)
  return()
endif()

if(EXISTS ${TALLYREX_GOOGLETEST_SOURCES}/googletest/CMakeLists.txt)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  set(googletest_binaries ${CMAKE_BINARY_DIR}/googletest)
  add_subdirectory(${TALLYREX_GOOGLETEST_SOURCES}/googletest ${googletest_binaries}
                   EXCLUDE_FROM_ALL)
  # Its warnings and faults are not ours to fix. It is optimized so far that most of its inline functions are gone,
  # since the linker for Windows takes long for many functions in one object file.
  foreach(library gtest gtest_main)
    set_target_properties(${library} PROPERTIES UNITY_BUILD OFF)
    if(MSVC)
      target_compile_options(${library} PRIVATE /w)
    else()
      target_compile_options(${library} PRIVATE -w -Og -g0)
    endif()
    if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=")
      target_compile_options(${library} PRIVATE -fno-sanitize=all)
    endif()
    if(NOT TARGET GTest::${library})
      add_library(GTest::${library} ALIAS ${library})
    endif()
  endforeach()
else()
  message(FATAL_ERROR
    "The tests need GoogleTest: neither a package for this compiler nor its sources in "
    "${TALLYREX_GOOGLETEST_SOURCES} were found. Install the sources (in Debian: apt install "
    "googletest), name their folder with -DTALLYREX_GOOGLETEST_SOURCES=FOLDER, or leave the "
    "tests out with -DTALLYREX_TESTS=OFF.")
endif()
