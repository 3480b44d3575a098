# Where `cmake --install` puts the program and what a desktop needs to show it,
# and the Debian package cpack makes from that.
include(GNUInstallDirs)

set(PURRLODGE_APP_ID org.purrlodge.Purrlodge)
set(PURRLODGE_DATA_DIR ${PROJECT_SOURCE_DIR}/data)

install(TARGETS purrlodge RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
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
# dpkg-shlibdeps finds the Qt 6 libraries the program links; the fonts are the
# ones the screens and printouts ask for by name.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "fonts-liberation2, fonts-liberation, fonts-dseg, fonts-blankenburg")
include(CPack)
