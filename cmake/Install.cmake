# SPDX-License-Identifier: GPL-3.0-or-later
# Installation and the Debian package.
#
# Layout under the prefix:
#   bin/lettriner                      launcher: starts the program in its data folder
#   bin/lettriner-cli                  link to the command-line search
#   lib/lettriner/                     the program's folder: executables, Sprachen.txt,
#                                      Settings.txt (the program may rewrite it)
#   share/lettriner/                   Bewertung1.txt, Bewertung2.txt, and wordlist/,
#                                      the rules DB1.txt is generated with
#   share/lettriner/DB1.txt, DB1.lex   the word list and the board's lexicon of it,
#                                      in installs without a package
#   /etc/lettriner/Bewertung*.txt      the package only: the letter values as conffiles,
#                                      which a player may edit (component "conffiles")
#   share/applications, share/icons, share/metainfo, share/man, share/doc
#
# The Debian package does not carry DB1.txt or DB1.lex (component "wordlist"
# stays out of it): it depends on wngerman and tanglet-data and generates both into
# /var/lib/lettriner when installed and whenever either changes, with the tool
# the build uses. Its postinst links the conffiles into the same folder; the
# copies in share/lettriner stay as the shipped values it compares against.

include(GNUInstallDirs)

set(LETTRINER_PROGRAM_DIR "lib/lettriner")
set(LETTRINER_DATA_DIR "${CMAKE_INSTALL_DATADIR}/lettriner")
set(LETTRINER_DOC_DIR "${CMAKE_INSTALL_DATADIR}/doc/lettriner")

install(TARGETS lettriner lettriner-cli lettriner-make-data
        RUNTIME DESTINATION "${LETTRINER_PROGRAM_DIR}" COMPONENT program)
install(FILES "${LETTRINER_RUN_DIR}/Sprachen.txt" "${LETTRINER_RUN_DIR}/Settings.txt"
        DESTINATION "${LETTRINER_PROGRAM_DIR}" COMPONENT program)
install(FILES "${LETTRINER_RUN_DIR}/Bewertung1.txt" "${LETTRINER_RUN_DIR}/Bewertung2.txt"
        DESTINATION "${LETTRINER_DATA_DIR}" COMPONENT program)
# Outside the prefix, so only the package installs them (EXCLUDE_FROM_ALL keeps
# a plain "cmake --install --prefix ~/.local" away from /etc).
install(FILES "${LETTRINER_RUN_DIR}/Bewertung1.txt" "${LETTRINER_RUN_DIR}/Bewertung2.txt"
        DESTINATION "/etc/lettriner" COMPONENT conffiles EXCLUDE_FROM_ALL)
install(DIRECTORY "${LETTRINER_WORD_RULES}/" DESTINATION "${LETTRINER_DATA_DIR}/wordlist"
        COMPONENT program FILES_MATCHING PATTERN "*.txt" PATTERN "*.COPYING" PATTERN "*.md")
install(FILES "${LETTRINER_RUN_DIR}/DB1.txt" "${LETTRINER_RUN_DIR}/DB1.lex"
        DESTINATION "${LETTRINER_DATA_DIR}" COMPONENT wordlist)
install(PROGRAMS "${PROJECT_SOURCE_DIR}/packaging/lettriner-launcher.sh"
        DESTINATION "${CMAKE_INSTALL_BINDIR}" RENAME lettriner COMPONENT program)
file(CREATE_LINK "../${LETTRINER_PROGRAM_DIR}/lettriner-cli"
     "${CMAKE_BINARY_DIR}/lettriner-cli-link" SYMBOLIC)
install(FILES "${CMAKE_BINARY_DIR}/lettriner-cli-link"
        DESTINATION "${CMAKE_INSTALL_BINDIR}" RENAME lettriner-cli COMPONENT program)

# Desktop integration.
install(FILES "${PROJECT_SOURCE_DIR}/packaging/lettriner.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT program)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/org.lettriner.Lettriner.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT program)
install(FILES "${PROJECT_SOURCE_DIR}/resources/icon.svg"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps"
        RENAME lettriner.svg COMPONENT program)
foreach(size 48x48 256x256)
    install(FILES "${LETTRINER_ICON_DIR}/${size}/lettriner.png"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}/apps" COMPONENT program)
endforeach()

# Manual pages (the version filled in) and the documents Debian asks for, compressed
# the reproducible way.
find_program(LETTRINER_GZIP gzip REQUIRED)
set(packaged_docs)
foreach(page lettriner.1 lettriner-cli.1)
    set(VERSION "${PROJECT_VERSION}")
    configure_file("${PROJECT_SOURCE_DIR}/packaging/man/${page}" "${CMAKE_BINARY_DIR}/man/${page}"
                   @ONLY)
    list(APPEND packaged_docs "${CMAKE_BINARY_DIR}/man/${page}")
endforeach()
configure_file("${PROJECT_SOURCE_DIR}/packaging/changelog" "${CMAKE_BINARY_DIR}/doc/changelog"
               COPYONLY)
list(APPEND packaged_docs "${CMAKE_BINARY_DIR}/doc/changelog")
set(compressed_docs)
foreach(document IN LISTS packaged_docs)
    add_custom_command(
        OUTPUT "${document}.gz"
        COMMAND "${LETTRINER_GZIP}" -9 -n -f -k "${document}"
        DEPENDS "${document}"
        VERBATIM)
    list(APPEND compressed_docs "${document}.gz")
endforeach()
add_custom_target(lettriner-docs ALL DEPENDS ${compressed_docs})
install(FILES "${CMAKE_BINARY_DIR}/man/lettriner.1.gz" "${CMAKE_BINARY_DIR}/man/lettriner-cli.1.gz"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT program)
install(FILES "${CMAKE_BINARY_DIR}/doc/changelog.gz" "${PROJECT_SOURCE_DIR}/packaging/copyright"
        DESTINATION "${LETTRINER_DOC_DIR}" COMPONENT program)

set(CPACK_PACKAGE_NAME "lettriner")
set(CPACK_PACKAGE_VENDOR "Lettriner")
set(CPACK_PACKAGE_CONTACT "Lettriner <lettriner@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Type the tiles on your rack and press Enter: Lettriner searches a German word
list of about 690,000 words for every word you can lay, values each word by
its letters' points and shows the best words first, with a second list of the
words that use every tile and so earn the bonus. Letters every word must
contain, letters no word may contain, letters borrowed from the board and a
minimum value narrow the search.
.
The command-line search lettriner-cli also knows blank tiles, board patterns
and a word check. The word list is generated at installation from the German
word lists of wngerman and tanglet-data.")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_GENERATOR "DEB")
# One package of the components below; the word list is generated, not shipped.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENTS_ALL program conffiles)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://example.org/lettriner")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_STRIP_FILES ON)
# The Qt platform plugins and Qt's German texts are loaded at run time, so
# shlibdeps cannot see them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "wngerman, tanglet-data, qt6-qpa-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
    "${PROJECT_SOURCE_DIR}/packaging/postinst;${PROJECT_SOURCE_DIR}/packaging/postrm;${PROJECT_SOURCE_DIR}/packaging/triggers;${PROJECT_SOURCE_DIR}/packaging/conffiles")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
