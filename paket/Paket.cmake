# What an installation consists of, and the package made of it: `cmake --install`, `cpack`. For Windows: windows/baue.
include(GNUInstallDirs)
set(ZRW_BETREUER "The Zarwik developers <zarwik@zarwik.invalid>" CACHE STRING
    "Name and address that a package carries as its maintainer")

set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
install(TARGETS zarwik RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# The program carries its manual; these are for reading without it. Folders as in the source, so that links hold.
set(unterlagen ${CMAKE_INSTALL_DATADIR}/doc/zarwik)  # Debian looks for a package's name, in lower case
install(DIRECTORY hilfe/ DESTINATION ${unterlagen}/handbuch/hilfe FILES_MATCHING PATTERN *.md)
install(DIRECTORY docs/bilder/ DESTINATION ${unterlagen}/handbuch/docs/bilder FILES_MATCHING PATTERN *.png)
install(DIRECTORY ui/bilder/ DESTINATION ${unterlagen}/handbuch/ui/bilder FILES_MATCHING PATTERN *.svg
        PATTERN "[0-9]*" EXCLUDE)
install(DIRECTORY beispiele/ DESTINATION ${unterlagen}/beispiele FILES_MATCHING
        PATTERN *.EIN PATTERN *.KF PATTERN *.SF PATTERN *.ZRW PATTERN *.DB PATTERN *.PX PATTERN *.gkf PATTERN *.xml
        PATTERN README.md)
install(FILES LICENSE DESTINATION ${unterlagen} RENAME copyright)

if(UNIX AND NOT APPLE)
  # Only libraries that are used become dependencies; the table of functions is read-only while running.
  target_link_options(zarwik PRIVATE LINKER:--as-needed LINKER:-z,relro LINKER:-z,now)

  # Named from here on for both the commands and the rules that install what they write.
  set(paketort ${CMAKE_CURRENT_BINARY_DIR}/paket)
  configure_file(paket/zarwik.1.in ${paketort}/zarwik.1 @ONLY)
  configure_file(paket/zarwik.metainfo.xml.in ${paketort}/zarwik.metainfo.xml @ONLY)
  find_program(GZIP gzip REQUIRED)
  add_custom_command(OUTPUT ${paketort}/zarwik.1.gz ${paketort}/changelog.gz
    COMMAND ${GZIP} -9nc ${paketort}/zarwik.1 > ${paketort}/zarwik.1.gz
    COMMAND ${GZIP} -9nc ${CMAKE_SOURCE_DIR}/paket/changelog > ${paketort}/changelog.gz
    DEPENDS ${paketort}/zarwik.1 paket/changelog VERBATIM)
  add_custom_target(paketdateien DEPENDS ${paketort}/zarwik.1.gz ${paketort}/changelog.gz)
  add_dependencies(zarwik paketdateien)

  set(symbole ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
  install(FILES ${paketort}/zarwik.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${paketort}/changelog.gz DESTINATION ${unterlagen})
  install(FILES ${paketort}/zarwik.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES paket/zarwik.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES paket/zarwik.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES ui/bilder/zarwik.svg DESTINATION ${symbole}/apps)
  install(FILES paket/bilder/application-x-zarwik-steuerdatei.svg paket/bilder/application-x-zarwik-bild.svg
          paket/bilder/application-x-gama-local.svg DESTINATION ${symbole}/mimetypes)
endif()

set(CPACK_PACKAGE_NAME zarwik)
set(CPACK_PACKAGE_VENDOR Zarwik)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "zeichnet geodätische Netze")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ZRW_BETREUER})
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at run time only: the font of the plots, Qt's own dialogs in German.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, shared-mime-info")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Zarwik liest die Steuerdatei einer geodätischen Ausgleichung und macht daraus
einen Netzplan, in dem jedes Symbol seine Punktart und jede Linie ihre
Beobachtungen erkennen lässt. Der Plan lässt sich mit der Maus bearbeiten,
im Maßstab drucken und als Zeichnung oder Bild ausgeben, auch ohne Bildschirm.
Liegen die Ergebnistabellen der Ausgleichung daneben, zeichnet Zarwik
Verbesserungen und Fehlerellipsen und markiert grobe Fehler.")
include(CPack)
