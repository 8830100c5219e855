# Finds the headers of CLI11, which are all that it consists of, and names in MORLEK_CLI11_FOLDER a
# folder that holds nothing else: a build for another system must not see the headers beside them.
find_path(MORLEK_CLI11_HEADERS CLI/CLI.hpp PATHS /usr/local/include /usr/include
                                           NO_CMAKE_FIND_ROOT_PATH)
if(NOT MORLEK_CLI11_HEADERS)
  message(
    FATAL_ERROR
      "morlek-league needs CLI11, which was not found. Install it (libcli11-dev on Debian), or do"
      " without the program: -DMORLEK_BUILD_LEAGUE=OFF")
endif()
set(MORLEK_CLI11_FOLDER ${PROJECT_BINARY_DIR}/cli11)
file(MAKE_DIRECTORY ${MORLEK_CLI11_FOLDER})
file(CREATE_LINK ${MORLEK_CLI11_HEADERS}/CLI ${MORLEK_CLI11_FOLDER}/CLI SYMBOLIC)
