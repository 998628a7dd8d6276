# CLI11 and nlohmann-json are header-only packages of the build machine. Windows code uses the same headers, but must
# not see the machine's other headers beside them: links in the build tree single them out.
find_path(ORY_NLOHMANN nlohmann/json.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(ORY_CLI11 CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(cabecalhos ${PROJECT_BINARY_DIR}/dependencias)
file(MAKE_DIRECTORY ${cabecalhos})
file(CREATE_LINK ${ORY_NLOHMANN}/nlohmann ${cabecalhos}/nlohmann SYMBOLIC)
file(CREATE_LINK ${ORY_CLI11}/CLI ${cabecalhos}/CLI SYMBOLIC)
add_library(ory_dependencias INTERFACE)
target_include_directories(ory_dependencias SYSTEM INTERFACE ${cabecalhos})
