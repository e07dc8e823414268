# The Debian package, drovia_<major>.<minor>.<build>_<arch>.deb, written by
# `cpack --config CPackConfig.cmake` (scripts/make-deb.sh):
#   /opt/drovia/Drovia.app                       the bundle, as `cmake --install` lays it out
#   /usr/share/applications/drovia.desktop       the menu entry
#   /usr/share/icons/hicolor/72x72/apps/drovia.png
#   /usr/share/metainfo/example.velmora.drovia.metainfo.xml   what software centres show
#   /usr/share/doc/drovia/{copyright,changelog.gz}, /usr/share/lintian/overrides/drovia
# The files outside the bundle form the component "deb", which a plain
# `cmake --install` leaves out, so that it still installs only the bundle,
# wherever the user chooses. The package has no maintainer scripts: each
# user's copy is the launcher's business, at that user's next start.

set(deb_name drovia)
set(deb_prefix /opt/${deb_name})
set(deb_share /usr/share)
set(deb_doc ${deb_share}/doc/${deb_name})
set(deb_files ${CMAKE_CURRENT_LIST_DIR}/deb)
set(deb_generated ${CMAKE_BINARY_DIR}/deb-files)
# Full path: the launcher finds its plug-ins from argv[0], textually.
set(deb_launcher ${deb_prefix}/${bundle_name}/Contents/MacOS/launcher)

configure_file(${deb_files}/drovia.desktop.in ${deb_generated}/${deb_name}.desktop @ONLY)
configure_file(${deb_files}/prepare-stage.cmake.in ${deb_generated}/prepare-stage.cmake @ONLY)

install(FILES ${deb_generated}/${deb_name}.desktop
    DESTINATION ${deb_share}/applications COMPONENT deb EXCLUDE_FROM_ALL)
install(FILES ${icon_source} RENAME ${deb_name}.png
    DESTINATION ${deb_share}/icons/hicolor/72x72/apps COMPONENT deb EXCLUDE_FROM_ALL)
install(FILES ${deb_files}/example.velmora.drovia.metainfo.xml
    DESTINATION ${deb_share}/metainfo COMPONENT deb EXCLUDE_FROM_ALL)
install(FILES ${deb_files}/copyright
    DESTINATION ${deb_doc} COMPONENT deb EXCLUDE_FROM_ALL)
install(FILES ${deb_files}/lintian-overrides RENAME ${deb_name}
    DESTINATION ${deb_share}/lintian/overrides COMPONENT deb EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${deb_name})
set(CPACK_PACKAGE_CONTACT "Velmora <packages@velmora.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop client that keeps files in sync with a server")
set(CPACK_PACKAGE_DESCRIPTION [[Drovia keeps the files on this computer in sync with your server.
This package installs the Drovia application for all users. On its first
start after an installation or upgrade it brings the user's own copy of the
client in ~/.Drovia up to date, then starts it.]])
# The package version is the bundle's: major.minor.build.
set(CPACK_PACKAGE_VERSION_PATCH ${DROVIA_BUILD_NUMBER})
set(CPACK_PACKAGING_INSTALL_PREFIX ${deb_prefix})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# One package of both components: the bundle (unnamed) and "deb".
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENTS_ALL Unspecified deb)
set(CPACK_PROJECT_CONFIG_FILE ${deb_files}/build-number.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${deb_generated}/prepare-stage.cmake)
include(CPack)
