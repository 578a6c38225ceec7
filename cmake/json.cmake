# The JSON library, nlohmann-json (header only, Debian: nlohmann-json3-dev). Its package's
# CMake config where the toolchain finds one (the native build; MSVC with vcpkg). The cross
# build's find is kept inside the MinGW root, so there it takes the build machine's packaged
# headers, copied into the build tree: no other header of the build machine becomes visible
# to the Windows compiler.
find_package(nlohmann_json 3.10 CONFIG QUIET)
if(NOT TARGET nlohmann_json::nlohmann_json)
  find_path(KES_JSON_INCLUDE nlohmann/json.hpp PATHS /usr/include /usr/local/include
            NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  if(NOT KES_JSON_INCLUDE)
    message(FATAL_ERROR "nlohmann-json not found (Debian: nlohmann-json3-dev)")
  endif()
  file(COPY ${KES_JSON_INCLUDE}/nlohmann DESTINATION ${CMAKE_BINARY_DIR}/extern)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
  target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/extern)
endif()
