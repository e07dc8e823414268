target_sources(launcher_core PRIVATE
    handler-thread.cpp
    installation-lock.cpp
    launcher.cpp
    worker.cpp)

add_executable(launcher main.cpp)
target_link_libraries(launcher PRIVATE launcher_core qtsingleapplication)

include(${PROJECT_SOURCE_DIR}/cmake/bundle.cmake)
