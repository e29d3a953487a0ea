# Compile options of this project. Every library and program links this target, most of them through
# tallyrex_common.
add_library(tallyrex_options INTERFACE)
target_compile_features(tallyrex_options INTERFACE cxx_std_20)
if(WIN32)
  target_compile_definitions(tallyrex_options INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0A00)
endif()
if(MSVC)
  target_compile_options(tallyrex_options INTERFACE
    /W4 /utf-8 /permissive- /EHsc $<$<BOOL:${TALLYREX_WARNINGS_AS_ERRORS}>:/WX>)
else()
  # File names in assertions are relative to the root of the sources.
  target_compile_options(tallyrex_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${TALLYREX_WARNINGS_AS_ERRORS}>:-Werror>
    "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=")
endif()

# Assertions stay on in releases.
foreach(config RELEASE RELWITHDEBINFO MINSIZEREL)
  string(REGEX REPLACE "[-/]DNDEBUG" "" CMAKE_CXX_FLAGS_${config} "${CMAKE_CXX_FLAGS_${config}}")
endforeach()
