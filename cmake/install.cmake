# Where an installed game puts its files, by the file-system hierarchy's rules for games (the
# program in games/, its data in share/games/hunt), with the desktop's launcher, icons, metainfo
# and manual page; and the Debian package CPack makes of them.
include(GNUInstallDirs)

set(HUNT_APP_ID "org.example.hunting" CACHE STRING "The reverse-domain id of the launcher and the metainfo")
set(HUNT_HOMEPAGE "https://example.org/hunt" CACHE STRING "Where the game and its screenshots are published")
set(hunt_data_dir ${CMAKE_INSTALL_DATADIR}/games/hunt)
set(hunt_dist_dir ${PROJECT_BINARY_DIR}/dist)
set(hunt_icon_sizes 16 24 32 48 64 128 256)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(GZIP gzip REQUIRED)

# The icons at the usual sizes are drawn from the one scalable icon.
set(hunt_icons)
foreach(size IN LISTS hunt_icon_sizes)
  set(png ${hunt_dist_dir}/icons/${size}/hunt.png)
  add_custom_command(OUTPUT ${png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${hunt_dist_dir}/icons/${size}
    COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} ${PROJECT_SOURCE_DIR}/dist/icons/hunt.svg -o ${png}
    DEPENDS ${PROJECT_SOURCE_DIR}/dist/icons/hunt.svg VERBATIM)
  list(APPEND hunt_icons ${png})
  install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

# Manual pages are installed compressed, without a time stamp, so that a package is the same on
# every build.
add_custom_command(OUTPUT ${hunt_dist_dir}/hunt.6.gz
  COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/dist/hunt.6 > ${hunt_dist_dir}/hunt.6.gz
  DEPENDS ${PROJECT_SOURCE_DIR}/dist/hunt.6)
add_custom_target(desktop_files ALL DEPENDS ${hunt_icons} ${hunt_dist_dir}/hunt.6.gz)

configure_file(dist/hunt.metainfo.xml.in ${hunt_dist_dir}/${HUNT_APP_ID}.metainfo.xml @ONLY)
configure_file(dist/hunt.desktop ${hunt_dist_dir}/${HUNT_APP_ID}.desktop COPYONLY)

install(TARGETS hunt_game RUNTIME DESTINATION games)
install(FILES ${PROJECT_SOURCE_DIR}/dist/icons/hunt.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${hunt_dist_dir}/${HUNT_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${hunt_dist_dir}/${HUNT_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${hunt_dist_dir}/hunt.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${PROJECT_SOURCE_DIR}/docs/assets.md DESTINATION ${hunt_data_dir} RENAME credits.md)
install(FILES ${PROJECT_SOURCE_DIR}/dist/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(HUNT_GENERATE_WORLD)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/world/ DESTINATION ${hunt_data_dir}/world)
else()
  message(STATUS "No sample world is generated, so an install leaves it out")
endif()

set(CPACK_PACKAGE_NAME hunt)
set(CPACK_PACKAGE_VENDOR "The hunt developers")
set(CPACK_PACKAGE_CONTACT "The hunt developers <hunt@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "hunting game in 360-degree panoramas")
set(CPACK_PACKAGE_DESCRIPTION "A single-player hunting game: outfit your hunter at the lodge, buy tags, \
sight in your rifle at the range, then hunt a week of late December in five worlds of panoramas.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${HUNT_HOMEPAGE})
# The libraries the program links come from dpkg-shlibdeps; Qt's window-system and media
# plugins come with the libraries they belong to.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core")
include(CPack)
