# Where `cmake --install` puts the program and what a desktop needs to show it,
# and the Debian package cpack makes from that.
include(GNUInstallDirs)

set(PURRLODGE_APP_ID org.purrlodge.Purrlodge)
set(PURRLODGE_DATA_DIR ${PROJECT_SOURCE_DIR}/data)

install(TARGETS purrlodge purrlodge-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PURRLODGE_DATA_DIR}/${PURRLODGE_APP_ID}.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PURRLODGE_DATA_DIR}/${PURRLODGE_APP_ID}.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PURRLODGE_DATA_DIR}/icons/${PURRLODGE_APP_ID}.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# The PNGs are rendered from the SVG once and kept in the repository, so the
# build needs no SVG renderer.
foreach(size 48 64 128 256)
  install(FILES ${PURRLODGE_DATA_DIR}/icons/${PURRLODGE_APP_ID}-${size}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps
    RENAME ${PURRLODGE_APP_ID}.png)
endforeach()

# The manual pages, gzipped as Debian keeps them when gzip is at hand (-n: no
# name or time stamp, so the package is the same on every build).
find_program(PURRLODGE_GZIP gzip)
foreach(page purrlodge.1 purrlodge-cli.1)
  if(PURRLODGE_GZIP)
    add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${page}.gz
      COMMAND ${PURRLODGE_GZIP} -9n -c ${PURRLODGE_DATA_DIR}/${page} > ${page}.gz
      DEPENDS ${PURRLODGE_DATA_DIR}/${page}
      WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
    list(APPEND PURRLODGE_MAN_PAGES ${CMAKE_CURRENT_BINARY_DIR}/${page}.gz)
  else()
    list(APPEND PURRLODGE_MAN_PAGES ${PURRLODGE_DATA_DIR}/${page})
  endif()
endforeach()
add_custom_target(purrlodge_man_pages ALL DEPENDS ${PURRLODGE_MAN_PAGES})
install(FILES ${PURRLODGE_MAN_PAGES} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# A systemd user service and timer for a nightly backup, for the person to copy
# into ~/.config/systemd/user; nothing enables them.
install(FILES ${PURRLODGE_DATA_DIR}/systemd/purrlodge-backup.service
  ${PURRLODGE_DATA_DIR}/systemd/purrlodge-backup.timer
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/purrlodge/examples)

set(CPACK_PACKAGE_NAME purrlodge)
set(CPACK_PACKAGE_VENDOR "Purrlodge")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Run a cattery, a boarding house for cats")
set(CPACK_PACKAGE_DESCRIPTION
  "Purrlodge keeps a cattery's clients and their cats, books their stays, works out and prints the account for each stay, keeps notes and memos, searches clients, exports lists and backs the data up.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY purrlodge)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Purrlodge developers <purrlodge@example.org>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# dpkg-shlibdeps finds the Qt 6 libraries both programs link. The platform
# plugins Qt loads at run time (xcb for the program, offscreen for
# purrlodge-cli's PDFs) are in libqt6gui6, which brings what they link. The
# Liberation, DSEG and Blankenburg fonts are the ones the screens and printouts
# ask for by name; DejaVu is the windows' own font: without it fontconfig
# answers "sans-serif" with Liberation Mono on a system that has only the fonts
# above, and every menu and label comes out in a typewriter face.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "fonts-liberation2, fonts-liberation, fonts-dseg, fonts-blankenburg, fonts-dejavu-core")
include(CPack)
