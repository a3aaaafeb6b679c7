# Installation and the Debian package.
#
# Layout under the prefix:
#   bin/lettriner                      launcher: starts the program in its data folder
#   lib/lettriner/                     the program's folder: executables, Sprachen.txt,
#                                      Settings.txt (the program may rewrite it)
#   share/lettriner/                   DB1.txt, Bewertung1.txt, Bewertung2.txt, read
#                                      from the current folder, which the launcher sets;
#                                      wordlist/, the rules DB1.txt is generated with
#   share/applications, share/icons    the desktop menu entry and its icon
#
# The Debian package does not carry DB1.txt: it depends on wngerman and builds the
# word list from it when installed, with the same tool the build uses.

include(GNUInstallDirs)

set(LETTRINER_PROGRAM_DIR "lib/lettriner")
set(LETTRINER_DATA_DIR "${CMAKE_INSTALL_DATADIR}/lettriner")

install(TARGETS lettriner lettriner-cli lettriner-make-data
        RUNTIME DESTINATION "${LETTRINER_PROGRAM_DIR}" COMPONENT program)
install(FILES "${LETTRINER_RUN_DIR}/Sprachen.txt" "${LETTRINER_RUN_DIR}/Settings.txt"
        DESTINATION "${LETTRINER_PROGRAM_DIR}" COMPONENT program)
install(FILES "${LETTRINER_RUN_DIR}/Bewertung1.txt" "${LETTRINER_RUN_DIR}/Bewertung2.txt"
        DESTINATION "${LETTRINER_DATA_DIR}" COMPONENT program)
install(DIRECTORY "${LETTRINER_WORD_RULES}/" DESTINATION "${LETTRINER_DATA_DIR}/wordlist"
        COMPONENT program FILES_MATCHING PATTERN "*.txt" PATTERN "*.COPYING" PATTERN "*.md")
install(FILES "${LETTRINER_RUN_DIR}/DB1.txt"
        DESTINATION "${LETTRINER_DATA_DIR}" COMPONENT wordlist)
install(PROGRAMS "${PROJECT_SOURCE_DIR}/packaging/lettriner-launcher.sh"
        DESTINATION "${CMAKE_INSTALL_BINDIR}" RENAME lettriner COMPONENT program)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/lettriner.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT program)
install(FILES "${PROJECT_SOURCE_DIR}/resources/icon.svg"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps"
        RENAME lettriner.svg COMPONENT program)

set(CPACK_PACKAGE_NAME "lettriner")
set(CPACK_PACKAGE_VENDOR "Lettriner")
set(CPACK_PACKAGE_CONTACT "Lettriner <lettriner@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_GENERATOR "DEB")
set(CPACK_COMPONENTS_ALL program)
set(CPACK_DEB_COMPONENT_INSTALL OFF)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "games")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The Qt platform plugins and Qt's German texts are loaded at run time, so
# shlibdeps cannot see them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "wngerman, qt6-qpa-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
    "${PROJECT_SOURCE_DIR}/packaging/postinst;${PROJECT_SOURCE_DIR}/packaging/prerm")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
