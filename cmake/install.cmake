# Installing the program as a Debian desktop program: the two executables, the demonstration
# data with the settlement template, the menu entry with its icon, the manual pages; and the
# .deb package made by `make package` (CPack).
include(GNUInstallDirs)

install(TARGETS pensja-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(PENSJA_GUI)
  install(TARGETS pensja RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/pensja.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/pensja.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()

# The demonstration data (the folder a first start copies), without the placeholders that keep
# empty folders in the repository and without the scripts that made it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/demo/ DESTINATION ${CMAKE_INSTALL_DATADIR}/pensja/demo
        PATTERN ".gitkeep" EXCLUDE PATTERN ".gitattributes" EXCLUDE PATTERN "*.sh" EXCLUDE PATTERN "*.md" EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/demo/dane/wzorc.kdu DESTINATION ${CMAKE_INSTALL_DATADIR}/pensja OPTIONAL)

# The manual pages: pensja-cli's from the same table as its --help, gzipped as Debian keeps them.
find_program(PENSJA_GZIP gzip)
set(man_cli ${CMAKE_CURRENT_BINARY_DIR}/pensja-cli.1)
set(man_gui ${CMAKE_CURRENT_BINARY_DIR}/pensja.1)
add_custom_command(OUTPUT ${man_cli}.gz ${man_gui}.gz
  COMMAND $<TARGET_FILE:pensja-cli> --man > ${man_cli}
  COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/packaging/pensja.1 ${man_gui}
  COMMAND ${PENSJA_GZIP} -9nf ${man_cli} ${man_gui}
  DEPENDS pensja-cli ${PROJECT_SOURCE_DIR}/packaging/pensja.1
  COMMENT "Strony podręcznika")
add_custom_target(manpages ALL DEPENDS ${man_cli}.gz ${man_gui}.gz)
install(FILES ${man_cli}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
if(PENSJA_GUI)
  install(FILES ${man_gui}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
set(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog)
add_custom_command(OUTPUT ${changelog}.gz
  COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/packaging/changelog ${changelog}
  COMMAND ${PENSJA_GZIP} -9nf ${changelog}
  DEPENDS ${PROJECT_SOURCE_DIR}/packaging/changelog)
add_custom_target(changelog ALL DEPENDS ${changelog}.gz)
install(FILES ${changelog}.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})

# The package: runtime dependencies of Debian 12 (bookworm).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pensja)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "pensja")
set(CPACK_PACKAGE_CONTACT "pensja developers <pensja@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "payroll and personnel program for Polish employers")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "pensja keeps the personnel and pay records of several payers
in plain text files, forms the month of a pay list, prints pay lists and
payslips, and makes the month's documents: settlement files for the
social-insurance client program, tax forms and bank transfer batches.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libc6 (>= 2.36), libstdc++6 (>= 12), libgcc-s1 (>= 3.0), libqt6core6 (>= 6.4.2), libqt6gui6 (>= 6.4.2), libqt6widgets6 (>= 6.4.2), libqt6printsupport6 (>= 6.4.2), qt6-qpa-plugins (>= 6.4.2), fonts-liberation")
include(CPack)
