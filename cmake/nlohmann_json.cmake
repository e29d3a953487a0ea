# nlohmann-json as the target nlohmann_json::nlohmann_json, for every toolchain. It is headers alone, so
# a cross build takes those of the building machine: through a folder of their own, since the folder
# they are installed in holds that machine's system headers too.
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
