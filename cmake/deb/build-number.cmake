# Read by cpack before it packs. `cpack -D DROVIA_BUILD_NUMBER=<n>` packs the
# build tree's binaries as build <n>: the package version says so here, and
# prepare-stage.cmake makes the staged bundle say so too.
if(DEFINED DROVIA_BUILD_NUMBER)
    set(CPACK_PACKAGE_VERSION_PATCH ${DROVIA_BUILD_NUMBER})
endif()
set(CPACK_PACKAGE_VERSION
    "${CPACK_PACKAGE_VERSION_MAJOR}.${CPACK_PACKAGE_VERSION_MINOR}.${CPACK_PACKAGE_VERSION_PATCH}")
