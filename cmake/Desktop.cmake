# What makes Tonvane a program of the Linux desktop: the data files beside the programs in the
# build tree, the install layout, icons, the menu entry, file types, AppStream data, man
# pages, and the .deb.
include(GNUInstallDirs)
set(TONVANE_DATA_INSTALL_DIR ${CMAKE_INSTALL_DATADIR}/tonvane)

# Sanitizer and fuzz builds exist for their tests only: nothing of theirs is installed.
if(TONVANE_SANITIZE OR TONVANE_FUZZ)
  return()
endif()

install(TARGETS tonvane-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# Whatever data exists at install time goes in, so files added later need no change here.
install(DIRECTORY ${CMAKE_BINARY_DIR}/translations/ DESTINATION ${TONVANE_DATA_INSTALL_DIR}/translations
        OPTIONAL FILES_MATCHING PATTERN "*.qm")
install(DIRECTORY ${CMAKE_SOURCE_DIR}/res/help/ DESTINATION ${TONVANE_DATA_INSTALL_DIR}/help OPTIONAL)
install(FILES ${CMAKE_BINARY_DIR}/notify.wav DESTINATION ${TONVANE_DATA_INSTALL_DIR} OPTIONAL)

# Man pages: tonvane(1) is written by hand; tonvane-cli(1) takes its options, arguments and
# summary from the program's own --help, so the two cannot drift apart.
set(MAN_DIR ${CMAKE_BINARY_DIR}/man)
configure_file(res/man/tonvane.1.in ${MAN_DIR}/tonvane.1 @ONLY)
add_custom_command(OUTPUT ${MAN_DIR}/tonvane-cli.1
  COMMAND ${CMAKE_SOURCE_DIR}/scripts/make-cli-man ${CMAKE_SOURCE_DIR}/res/man/tonvane-cli.1.in
          $<TARGET_FILE:tonvane-cli> ${PROJECT_VERSION} ${MAN_DIR}/tonvane-cli.1
  DEPENDS tonvane-cli ${CMAKE_SOURCE_DIR}/res/man/tonvane-cli.1.in ${CMAKE_SOURCE_DIR}/scripts/make-cli-man
  COMMENT "Writing the tonvane-cli man page from its --help" VERBATIM)
set(MAN_GZ)
foreach(page tonvane tonvane-cli)
  add_custom_command(OUTPUT ${MAN_DIR}/${page}.1.gz
    COMMAND sh -c "gzip -9n < ${page}.1 > ${page}.1.gz"
    WORKING_DIRECTORY ${MAN_DIR}
    DEPENDS ${MAN_DIR}/${page}.1 VERBATIM)
  list(APPEND MAN_GZ ${MAN_DIR}/${page}.1.gz)
endforeach()
add_custom_target(man ALL DEPENDS ${MAN_GZ})
install(FILES ${MAN_GZ} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

if(TONVANE_GUI)
  install(TARGETS tonvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

  # The application icon: one drawing, rendered to the theme's fixed sizes.
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)
  set(ICON_SVG ${CMAKE_SOURCE_DIR}/res/icons/tonvane.svg)
  set(ICON_PNGS)
  foreach(size 16 32 48 64 128 256)
    set(png ${CMAKE_BINARY_DIR}/icons/hicolor/${size}x${size}/apps/tonvane.png)
    add_custom_command(OUTPUT ${png}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons/hicolor/${size}x${size}/apps
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${png} ${ICON_SVG}
      DEPENDS ${ICON_SVG} VERBATIM)
    list(APPEND ICON_PNGS ${png})
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
  endforeach()
  add_custom_target(app_icons ALL DEPENDS ${ICON_PNGS})
  install(FILES ${ICON_SVG} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

  install(FILES res/desktop/tonvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES res/desktop/tonvane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES res/desktop/tonvane-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
          RENAME tonvane.xml)
endif()

# Debian asks every package for its copyright and a compressed changelog.
set(DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/tonvane)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/changelog.gz
  COMMAND sh -c "gzip -9n < ${CMAKE_SOURCE_DIR}/res/desktop/changelog > ${CMAKE_BINARY_DIR}/changelog.gz"
  DEPENDS ${CMAKE_SOURCE_DIR}/res/desktop/changelog VERBATIM)
add_custom_target(changelog ALL DEPENDS ${CMAKE_BINARY_DIR}/changelog.gz)
install(FILES res/desktop/copyright ${CMAKE_BINARY_DIR}/changelog.gz DESTINATION ${DOC_DIR})

# The .deb: `cpack -G DEB` in the build folder. Library dependencies come from
# dpkg-shlibdeps; the SVG plug-ins are loaded at run time, so no linker tells of them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tonvane)
set(CPACK_PACKAGE_VENDOR "Ostrel Works")
set(CPACK_PACKAGE_CONTACT "Ostrel Works <tonvane@ostrel.works>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "loudness tester for audio files")
# CPack puts the summary first and indents these lines as the long description.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Tonvane tells how loud music files are: per channel, the peak level (percent
of full scale or dB) or the average loudness against an 89 dB reference, with
the highest level the file could have without clipping. It plays the file,
tests whole folders and playlists in a batch, and keeps every result in a test
log, so a second test of an unchanged file reads no samples.

It reads WAV, MP3, FLAC, Ogg Vorbis, Monkey's Audio, AAC and ALAC. The
tonvane-cli command runs the same tests without a window.")
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://ostrel.works/tonvane")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, qt6-translations-l10n")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
include(CPack)
