# Assembles Drovia.app in the build tree, laid out as a macOS bundle so that
# it runs in place, and installs the same bundle under the prefix:
#   Contents/MacOS/launcher
#   Contents/Resources/INFO                      version of this build
#   Contents/Resources/images/ico_72_drovia.png
#   Contents/Resources/package/drovia.vpk        the per-user bundle, packed
#   Contents/Frameworks/plugins/platforms/       the toolkit's platform plug-ins
# The package is packed from a staged per-user bundle: the client and its
# version file.

set(bundle_name Drovia.app)
set(bundle_dir ${CMAKE_BINARY_DIR}/${bundle_name})
set(stage_dir ${CMAKE_BINARY_DIR}/package-stage/${bundle_name})

set(bundle_resources ${bundle_dir}/Contents/Resources)
set(bundle_info ${bundle_resources}/INFO)
set(bundle_icon ${bundle_resources}/images/ico_72_drovia.png)
set(bundle_package ${bundle_resources}/package/drovia.vpk)
set(bundle_platforms ${bundle_dir}/Contents/Frameworks/plugins/platforms)
set(stage_client ${stage_dir}/Contents/MacOS/cloud-ui)
set(stage_info ${stage_dir}/Contents/Resources/INFO)
set(icon_source ${PROJECT_SOURCE_DIR}/ui-client/launcher/images/ico_72_drovia.png)
set(make_package ${PROJECT_SOURCE_DIR}/scripts/make-package.sh)

find_program(BSDTAR_EXECUTABLE bsdtar REQUIRED)

set_target_properties(launcher PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${bundle_dir}/Contents/MacOS)

configure_file(${CMAKE_CURRENT_LIST_DIR}/INFO.in ${bundle_info} @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/INFO.in ${stage_info} @ONLY)

add_custom_command(OUTPUT ${bundle_icon}
    COMMAND ${CMAKE_COMMAND} -E copy ${icon_source} ${bundle_icon}
    DEPENDS ${icon_source})

add_custom_command(OUTPUT ${stage_client}
    COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:cloud-ui> ${stage_client}
    DEPENDS cloud-ui
    COMMENT "Staging the per-user client")

add_custom_command(OUTPUT ${bundle_package}
    COMMAND ${make_package} ${stage_dir} ${bundle_package}
    DEPENDS ${stage_client} ${stage_info} ${make_package}
    COMMENT "Packing drovia.vpk")

# Platform plug-ins come from the system's Qt; the launcher loads them from
# the bundle only.
set(platform_plugins
    Qt5::QXcbIntegrationPlugin Qt5::QOffscreenIntegrationPlugin Qt5::QMinimalIntegrationPlugin)
set(plugin_sources)
set(plugin_copies)
foreach(plugin IN LISTS platform_plugins)
    get_target_property(plugin_source ${plugin} LOCATION)
    get_filename_component(plugin_file ${plugin_source} NAME)
    add_custom_command(OUTPUT ${bundle_platforms}/${plugin_file}
        COMMAND ${CMAKE_COMMAND} -E copy ${plugin_source} ${bundle_platforms}/${plugin_file}
        DEPENDS ${plugin_source})
    list(APPEND plugin_sources ${plugin_source})
    list(APPEND plugin_copies ${bundle_platforms}/${plugin_file})
endforeach()

add_custom_target(drovia_bundle ALL DEPENDS ${bundle_icon} ${bundle_package} ${plugin_copies})
add_dependencies(drovia_bundle launcher)

install(TARGETS launcher RUNTIME DESTINATION ${bundle_name}/Contents/MacOS)
install(FILES ${bundle_info} DESTINATION ${bundle_name}/Contents/Resources)
install(FILES ${bundle_icon} DESTINATION ${bundle_name}/Contents/Resources/images)
install(FILES ${bundle_package} DESTINATION ${bundle_name}/Contents/Resources/package)
install(FILES ${plugin_sources} DESTINATION ${bundle_name}/Contents/Frameworks/plugins/platforms)

include(${CMAKE_CURRENT_LIST_DIR}/deb-package.cmake)
