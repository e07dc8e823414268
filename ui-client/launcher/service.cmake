# Upgrade service and archive extractor. Recognising and starting the client
# is the one step that differs by platform.
if(APPLE)
    set(CLIENT_PROCESS_SOURCE mac/client-process-mac.cpp)
else()
    set(CLIENT_PROCESS_SOURCE mac/client-process-linux.cpp)
endif()

target_sources(launcher_core PRIVATE
    cloud-service.cpp
    entry-guard.cpp
    extractor.cpp
    mac/mac-service.cpp
    upgrade-transaction.cpp
    utf8-names.cpp
    ${CLIENT_PROCESS_SOURCE})
