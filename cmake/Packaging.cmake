# What an installation holds beside the program, and the Debian package that CPack makes of it.
# For Windows the program is one file: packaging/windows/build puts it into an archive.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  return()
endif()

include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(app_id org.morlek.Editor)

# add_compressed(<output> <input>): what the system reads compressed, without a time stamp inside.
find_program(GZIP gzip REQUIRED)
function(add_compressed output input)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${GZIP} -9nc ${input} > ${output}
    DEPENDS ${input}
    VERBATIM)
endfunction()
set(man_page ${PROJECT_BINARY_DIR}/morlek-editor.1.gz)
set(debian_changelog ${PROJECT_BINARY_DIR}/changelog.Debian.gz)
add_compressed(${man_page} ${packaging}/linux/morlek-editor.1)
add_compressed(${debian_changelog} ${packaging}/linux/changelog)
add_custom_target(compressed_documents DEPENDS ${man_page} ${debian_changelog})
add_dependencies(morlek-editor compressed_documents) # so whoever has the program can install it

install(TARGETS morlek-editor)
install(FILES ${packaging}/linux/${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/linux/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/icons/${app_id}.svg DESTINATION ${icons}/scalable/apps)
foreach(size IN ITEMS 16 32 48 64 128 256)
  install(
    FILES ${packaging}/icons/${size}.png
    DESTINATION ${icons}/${size}x${size}/apps
    RENAME ${app_id}.png)
endforeach()

# A Debian package tells the licences in its copyright file; every other installation has the texts.
install(
  FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/resources/fonts/LICENSE-Roboto.txt
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT licences)
install(
  FILES ${packaging}/linux/copyright ${debian_changelog}
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT debian
  EXCLUDE_FROM_ALL)
install(
  FILES ${packaging}/linux/lintian-overrides
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
  RENAME morlek-editor
  COMPONENT debian
  EXCLUDE_FROM_ALL)

if(MORLEK_BUILD_TESTS)
  add_test(NAME Packaging.DesktopEntry COMMAND desktop-file-validate
                                               ${packaging}/linux/${app_id}.desktop)
  add_test(NAME Packaging.Metainfo COMMAND appstreamcli validate --no-net
                                           ${packaging}/linux/${app_id}.metainfo.xml)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};Unspecified;/"
                                 "${PROJECT_BINARY_DIR};${PROJECT_NAME};debian;/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Morlek Editor developers <developers@morlek.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://morlek.example/editor)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "team editor for the cartridge image of a SNES baseball game")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Opens the cartridge image of the SNES game Dale Harrow Jr. Baseball and shows
the 25 players of each of its 28 teams in one sheet: names, positions, uniform
numbers, batting sides and throwing hands, ratings, averages, statistics, and
the face, body and legs of the batting stances. They are edited and saved in
place; teams can be exported to and imported from text files.")
include(CPack)
