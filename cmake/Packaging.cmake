# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What belongs to the programs on a desktop, and the Debian package.

find_program(GZIP gzip REQUIRED)
set(hicolor ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(packaged)

# velquon_compressed(<file> <name>) makes <name>.gz, the same on each build.
function(velquon_compressed source name)
  set(copy ${CMAKE_BINARY_DIR}/packaging/${name})
  add_custom_command(OUTPUT ${copy}.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packaging
    COMMAND ${CMAKE_COMMAND} -E copy ${source} ${copy}
    COMMAND ${GZIP} -9 --no-name --force ${copy}
    DEPENDS ${source} VERBATIM)
  set(packaged ${packaged} ${copy}.gz PARENT_SCOPE)
endfunction()

# The starter, the type of event files and their icons.
install(FILES resources/desktop/velquon.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/desktop/org.velquon.velquon.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/desktop/velquon-event.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME velquon.xml)

set(event_icon application-x-velquon-event)
foreach(size 16 32 48 64 128 256)
  install(FILES ${CMAKE_BINARY_DIR}/resources/images/icons/velquon-${size}.png
    DESTINATION ${hicolor}/${size}x${size}/apps RENAME velquon.png)
  set(png ${CMAKE_BINARY_DIR}/packaging/${event_icon}-${size}.png)
  add_custom_command(OUTPUT ${png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packaging
    COMMAND ${RSVG_CONVERT} --width ${size} --keep-aspect-ratio --output ${png}
            ${PROJECT_SOURCE_DIR}/resources/icons/velquon-event.svg
    DEPENDS resources/icons/velquon-event.svg VERBATIM)
  list(APPEND packaged ${png})
  install(FILES ${png} DESTINATION ${hicolor}/${size}x${size}/mimetypes RENAME ${event_icon}.png)
endforeach()
install(FILES resources/icons/velquon.svg DESTINATION ${hicolor}/scalable/apps)
install(FILES resources/icons/velquon-event.svg
  DESTINATION ${hicolor}/scalable/mimetypes RENAME ${event_icon}.svg)

# Many events on a cluster.
install(PROGRAMS resources/cluster/velquon-array resources/cluster/velquon-parallel
  DESTINATION ${CMAKE_INSTALL_DATADIR}/velquon)

# Manual pages and documents.
foreach(page velquon.1 velquon-events.1)
  velquon_compressed(${PROJECT_SOURCE_DIR}/docs/man/${page} ${page})
  install(FILES ${CMAKE_BINARY_DIR}/packaging/${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
velquon_compressed(${PROJECT_SOURCE_DIR}/resources/desktop/changelog changelog)
install(FILES resources/desktop/copyright ${CMAKE_BINARY_DIR}/packaging/changelog.gz
  DESTINATION ${CMAKE_INSTALL_DOCDIR})
foreach(document README.md CHANGELOG.md)
  if(EXISTS ${PROJECT_SOURCE_DIR}/${document})
    install(FILES ${document} DESTINATION ${CMAKE_INSTALL_DOCDIR})
  endif()
endforeach()

add_custom_target(packaging ALL DEPENDS ${packaged})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "The Velquon developers")
set(CPACK_PACKAGE_CONTACT "The Velquon developers <velquon@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "simulator of a particle-detector chamber in a magnetic field")
set(CPACK_PACKAGE_DESCRIPTION "\
Velquon makes decays of pions, muons and the Lambda by chance in a chamber\n\
with a magnetic field, shows their tracks in three dimensions and flat on a\n\
plane, measures and prints them, and keeps them in event files. A window of\n\
its own shows the track of an electron or a positron while it flies.\n\
\n\
The command-line tool velquon-events makes events in any number as tables or\n\
event files, without a screen.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Its lpstat finds the printers; Qt's own texts in other languages.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups-client, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
