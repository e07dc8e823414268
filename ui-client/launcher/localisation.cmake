# String table, translation catalogues, progress dialog and progress relay.

target_sources(launcher_core PRIVATE
    strtable.cpp
    notify-adapter.cpp
    processing-progress-dialog.cpp)

# Translators add catalogues by dropping <code>.ts into translations/; the
# glob is re-checked on every build so a new one is compiled in right away.
file(GLOB drovia_catalogue_sources CONFIGURE_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/translations/*.ts")

set(drovia_catalogue_dir "${CMAKE_CURRENT_BINARY_DIR}/texts")
set_source_files_properties(${drovia_catalogue_sources}
    PROPERTIES OUTPUT_LOCATION "${drovia_catalogue_dir}")
qt5_add_translation(drovia_catalogues ${drovia_catalogue_sources} OPTIONS -silent)

# Each catalogue sits at the resource root as ":/<code>.qm", which is the
# name the language choice tests for and start-up loads.
set(drovia_texts_qrc "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n<qresource>\n")
foreach(catalogue IN LISTS drovia_catalogues)
    get_filename_component(catalogue_name "${catalogue}" NAME)
    string(APPEND drovia_texts_qrc
        "    <file alias=\"${catalogue_name}\">${catalogue_name}</file>\n")
endforeach()
string(APPEND drovia_texts_qrc "</qresource>\n</RCC>\n")
file(CONFIGURE OUTPUT "${drovia_catalogue_dir}/texts.qrc"
     CONTENT "${drovia_texts_qrc}" @ONLY)

# zlib is named explicitly because rcc would otherwise pick zstd where it is
# available; format version 1 keeps the data readable by every Qt 5 runtime.
qt5_add_resources(drovia_texts_sources "${drovia_catalogue_dir}/texts.qrc"
    OPTIONS --compress-algo zlib --format-version 1)
target_sources(launcher_core PRIVATE ${drovia_texts_sources})

# The tests compare what the resources hand out with the compiled files.
set_target_properties(launcher_core PROPERTIES
    DROVIA_CATALOGUE_DIR "${drovia_catalogue_dir}")
