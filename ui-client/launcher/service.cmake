# Upgrade service and archive extractor. Starting the client is the one step
# that differs by platform.
if(APPLE)
    set(CLIENT_LAUNCH_SOURCE mac/client-launch-mac.cpp)
else()
    set(CLIENT_LAUNCH_SOURCE mac/client-launch-linux.cpp)
endif()

target_sources(launcher_core PRIVATE
    cloud-service.cpp
    extractor.cpp
    mac/mac-service.cpp
    ${CLIENT_LAUNCH_SOURCE})
