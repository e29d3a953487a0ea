# nlohmann-json as the target nlohmann_json::nlohmann_json, for every toolchain. It is header-only,
# so a cross build uses the headers of the build machine, through a separate folder, since their own
# folder also contains system headers.
if(CMAKE_CROSSCOMPILING)
  find_path(TALLYREX_NLOHMANN_JSON_INCLUDE nlohmann/json.hpp REQUIRED
            PATHS /usr/include /usr/local/include NO_CMAKE_FIND_ROOT_PATH)
  set(nlohmann_json_headers ${CMAKE_BINARY_DIR}/nlohmann_json)
  file(COPY ${TALLYREX_NLOHMANN_JSON_INCLUDE}/nlohmann DESTINATION ${nlohmann_json_headers})
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
  target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${nlohmann_json_headers})
else()
  find_package(nlohmann_json REQUIRED)
endif()
