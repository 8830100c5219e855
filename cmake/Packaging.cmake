# What an installation on Linux holds beside the programs. The Debian packages take from it what they
# need (debian/); for Windows each program is one file (packaging/windows/build).
include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(app_id org.morlek.Editor)

install(TARGETS morlek-editor)
install(FILES ${packaging}/linux/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/linux/morlek-editor.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/resources/fonts/LICENSE-Roboto.txt
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(MORLEK_BUILD_LEAGUE)
  install(TARGETS morlek-league)
  install(FILES ${packaging}/linux/morlek-league.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/icons/${app_id}.svg DESTINATION ${icons}/scalable/apps)
foreach(size IN ITEMS 16 32 48 64 128 256)
  install(
    FILES ${packaging}/icons/${size}.png
    DESTINATION ${icons}/${size}x${size}/apps
    RENAME ${app_id}.png)
endforeach()

# The desktop entry names the program by its whole path, because a session need not look for programs
# where a person installs them.
set(desktop_entry ${packaging}/linux/${app_id}.desktop)
set(desktop_folder ${CMAKE_INSTALL_DATADIR}/applications)
install(
  CODE "
    set(installed \"\${CMAKE_INSTALL_PREFIX}/${desktop_folder}/${app_id}.desktop\")
    file(READ \"${desktop_entry}\" entry)
    string(REPLACE \"Exec=morlek-editor\"
      \"Exec=\\\"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/morlek-editor\\\"\" entry \"\${entry}\")
    message(STATUS \"Installing: \$ENV{DESTDIR}\${installed}\")
    file(WRITE \"\$ENV{DESTDIR}\${installed}\" \"\${entry}\")
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES \"\${installed}\")
  ")

add_custom_target(
  uninstall
  COMMAND ${CMAKE_COMMAND} -P ${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  VERBATIM)
