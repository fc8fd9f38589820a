# The Debian package: tools/dev/package builds it, asks lintian about it, and is the way to make it.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME plinkett)
set(CPACK_PACKAGE_VENDOR "The Plinkett founders")
set(CPACK_PACKAGE_CONTACT "The Plinkett founders <founders@plinkett.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "make printed books and boards talk")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# The desktop entry names the program by its path: everything is installed for /usr.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt5svg5)  # the icons; no program is linked with it
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "espeak-ng, ffmpeg, qttranslations5-l10n, fonts-dejavu-core, fonts-noto-color-emoji")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Bring pictures, draw areas on them, name the areas and write one small
script that says what happens when the tiptoi pen touches them.
Plinkett makes the game file for the pen, the speech, and print images
in which every area carries its dot pattern.
.
There is a window and a command line (plinkett-cli). Three sample books
come along, in English and German.")

# What Debian wants to know of every package lies in share/doc.
set(debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
string(TIMESTAMP debian_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(STRINGS ${CMAKE_SOURCE_DIR}/LICENSE licence_lines)
list(REMOVE_AT licence_lines 0)  # its name
set(licence_text)
foreach(line IN LISTS licence_lines)
  if(line MATCHES "^Copyright")
    continue()
  endif()
  if(line STREQUAL "")
    set(line .)
  endif()
  string(APPEND licence_text " ${line}\n")
endforeach()
string(REGEX REPLACE "^( \\.\n)+" "" licence_text "${licence_text}")
set(packaging ${CMAKE_BINARY_DIR}/install)
configure_file(${CMAKE_SOURCE_DIR}/cmake/debian/copyright.in ${packaging}/copyright @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/cmake/debian/changelog.in ${packaging}/changelog.Debian @ONLY)
plinkett_compressed(changelog.Debian ${packaging}/changelog.Debian share/doc/plinkett)
plinkett_compressed(changelog ${CMAKE_SOURCE_DIR}/CHANGELOG.md share/doc/plinkett)
install(FILES ${packaging}/copyright ${CMAKE_SOURCE_DIR}/cmake/debian/README.Debian
        DESTINATION share/doc/plinkett)
install(FILES ${CMAKE_SOURCE_DIR}/cmake/debian/lintian-overrides
        DESTINATION share/lintian/overrides RENAME plinkett)

include(CPack)
