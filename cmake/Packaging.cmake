# What an installation holds beside the programs, and the two Debian packages that CPack makes of it:
# the components league and league_debian are that of morlek-league, all others the editor's.
# For Windows each program is one file: packaging/windows/build puts them into an archive.
include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(app_id org.morlek.Editor)

install(TARGETS morlek-editor)
install(FILES ${packaging}/linux/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/icons/${app_id}.svg DESTINATION ${icons}/scalable/apps)
foreach(size IN ITEMS 16 32 48 64 128 256)
  install(
    FILES ${packaging}/icons/${size}.png
    DESTINATION ${icons}/${size}x${size}/apps
    RENAME ${app_id}.png)
endforeach()

add_custom_target(
  uninstall
  COMMAND ${CMAKE_COMMAND} -P ${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  VERBATIM)

# A Debian package tells the licences in its copyright file and holds the man page compressed; every
# other installation has both as they are. Its desktop entry names the program by its whole path,
# because a session need not look for programs where a person installs them.
set(desktop_entry ${packaging}/linux/${app_id}.desktop)
set(desktop_folder ${CMAKE_INSTALL_DATADIR}/applications)
install(
  FILES ${desktop_entry}
  DESTINATION ${desktop_folder}
  COMPONENT debian
  EXCLUDE_FROM_ALL)
install(
  CODE "
    set(installed \"\${CMAKE_INSTALL_PREFIX}/${desktop_folder}/${app_id}.desktop\")
    file(READ \"${desktop_entry}\" entry)
    string(REPLACE \"Exec=morlek-editor\"
      \"Exec=\\\"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/morlek-editor\\\"\" entry \"\${entry}\")
    message(STATUS \"Installing: \$ENV{DESTDIR}\${installed}\")
    file(WRITE \"\$ENV{DESTDIR}\${installed}\" \"\${entry}\")
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES \"\${installed}\")
  "
  COMPONENT plain)
set(man_page ${packaging}/linux/morlek-editor.1)
set(man_folder ${CMAKE_INSTALL_MANDIR}/man1)
install(
  FILES ${man_page}
  DESTINATION ${man_folder}
  COMPONENT plain)
install(
  FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/resources/fonts/LICENSE-Roboto.txt
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT plain)
install(
  FILES ${packaging}/linux/copyright
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT debian
  EXCLUDE_FROM_ALL)
install(
  FILES ${packaging}/linux/lintian-overrides
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
  RENAME morlek-editor
  COMPONENT debian
  EXCLUDE_FROM_ALL)

# install_compressed(<input> <folder> <name> <component>): for a Debian package, without a time stamp
# inside.
function(install_compressed input folder name component)
  install(
    CODE "
      set(output \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}/${name}\")
      file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}\")
      execute_process(
        COMMAND gzip -9nc \"${input}\" OUTPUT_FILE \"\${output}\" COMMAND_ERROR_IS_FATAL ANY)
    "
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()
install_compressed(${man_page} ${man_folder} morlek-editor.1.gz debian)
install_compressed(${packaging}/linux/changelog ${CMAKE_INSTALL_DOCDIR} changelog.Debian.gz debian)

if(MORLEK_BUILD_LEAGUE)
  set(league_docs ${CMAKE_INSTALL_DATAROOTDIR}/doc/morlek-league)
  install(TARGETS morlek-league COMPONENT league)
  install(
    FILES ${packaging}/linux/morlek-league.1
    DESTINATION ${man_folder}
    COMPONENT plain)
  install(
    FILES ${packaging}/linux/copyright
    DESTINATION ${league_docs}
    COMPONENT league_debian
    EXCLUDE_FROM_ALL)
  install(
    FILES ${packaging}/linux/lintian-overrides-league
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME morlek-league
    COMPONENT league_debian
    EXCLUDE_FROM_ALL)
  install_compressed(${packaging}/linux/morlek-league.1 ${man_folder} morlek-league.1.gz
                     league_debian)
  install_compressed(${packaging}/linux/changelog ${league_docs} changelog.Debian.gz league_debian)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Unspecified debian)
if(MORLEK_BUILD_LEAGUE)
  list(APPEND CPACK_COMPONENTS_ALL league league_debian)
endif()
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
# The first line of each package's own description takes its place.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(CPACK_DEBIAN_EDITOR_PACKAGE_NAME morlek-editor)
# The desktop's own file dialogs, and a window on Wayland without XWayland.
set(CPACK_DEBIAN_EDITOR_PACKAGE_RECOMMENDS
    "qt6-gtk-platformtheme | qt6-xdgdesktopportal-platformtheme, qt6-wayland")
set(CPACK_DEBIAN_EDITOR_PACKAGE_SUGGESTS morlek-league)
set(CPACK_DEBIAN_EDITOR_DESCRIPTION
    "team editor for the cartridge image of a SNES baseball game
Opens the cartridge image of the SNES game Dale Harrow Jr. Baseball and shows
the 25 players of each of its 28 teams in one sheet: names, positions, uniform
numbers, batting sides and throwing hands, ratings, averages, statistics, and
the face, body and legs of the batting stances. They are edited and saved in
place; teams can be exported to and imported from text files.")

set(CPACK_DEBIAN_LEAGUE_PACKAGE_NAME morlek-league)
set(CPACK_DEBIAN_LEAGUE_DESCRIPTION
    "carry the teams of a SNES baseball game's image to a table and back
Writes all 28 teams in the cartridge image of the SNES game Dale Harrow Jr.
Baseball to one table for a spreadsheet, takes such a table back into the
image, all of it or nothing, and shows what differs between two images or
tables. It has no window; morlek-editor edits one team after the other.")

include(CPack)
cpack_add_component_group(editor)
cpack_add_component_group(league)
cpack_add_component(Unspecified GROUP editor)
cpack_add_component(debian GROUP editor)
cpack_add_component(league GROUP league)
cpack_add_component(league_debian GROUP league)
