# What clang-tidy reads, never built: nearly all sources as one unit. Each of its checks looks at every declaration
# of the standard's headers, too, so that most of its time goes by the number of units. It asks that names in
# unnamed namespaces differ between all files. That the unit includes them is meant.
set(linted_sources src/main.cpp src/companion/main.cpp src/companion/reference/main.cpp src/editors/main.cpp)
foreach(library IN ITEMS pozhil_unhurried pozhil_core pozhil_companion language_server
                         companion_commands_table pozhil_reference pozhil_editors)
    get_target_property(sources ${library} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(APPEND linted_sources ${sources})
endforeach()
add_library(linted OBJECT EXCLUDE_FROM_ALL ${linted_sources})
target_include_directories(linted PRIVATE src "உள்ளடக்கம்" "${CMAKE_BINARY_DIR}/generated")
target_compile_definitions(linted PRIVATE "POZHIL_LIBRARY_DIR=\"./\"")
# A source with definitions of its own would stand apart, and each `main` is to be another function.
set_property(SOURCE src/parser/modules.cpp PROPERTY COMPILE_DEFINITIONS)
set_target_properties(linted PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0
    UNITY_BUILD_UNIQUE_ID POZHIL_SOURCE
    UNITY_BUILD_CODE_BEFORE_INCLUDE "#define main POZHIL_SOURCE\n// NOLINTNEXTLINE(bugprone-suspicious-include)"
    UNITY_BUILD_CODE_AFTER_INCLUDE "#undef main")
