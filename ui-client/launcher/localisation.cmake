target_sources(launcher_core PRIVATE strtable.cpp)
