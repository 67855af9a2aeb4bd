# The companion, which looks at sources and explains: a new command or rule is a new file.
file(GLOB_RECURSE companion_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/companion/*.cpp")
# The language server speaks JSON by a large header, which one unit alone reads.
file(GLOB language_server_sources CONFIGURE_DEPENDS
     "${CMAKE_SOURCE_DIR}/src/companion/language_server/*.cpp")
list(REMOVE_ITEM companion_sources ${language_server_sources})
list(REMOVE_ITEM companion_sources "${CMAKE_SOURCE_DIR}/src/companion/main.cpp"
     "${CMAKE_SOURCE_DIR}/src/companion/commands.cpp" "${CMAKE_SOURCE_DIR}/src/companion/thrown_report.cpp")
list(FILTER companion_sources EXCLUDE REGEX "/src/companion/reference/")
# The programs that descriptions show are files, too.
set(shown_programs_header "${CMAKE_BINARY_DIR}/generated/shown_programs.h")
set(descriptions_dir "${CMAKE_SOURCE_DIR}/src/companion/descriptions")
file(GLOB shown_programs CONFIGURE_DEPENDS "${descriptions_dir}/programs/*.பொழில்"
     "${descriptions_dir}/unprinted/*.பொழில்"
     "${descriptions_dir}/programs/*.out" "${descriptions_dir}/codes/*/*.பொழில்"
     "${descriptions_dir}/codes/*/*.report")
add_custom_command(
    OUTPUT "${shown_programs_header}"
    COMMAND "${CMAKE_COMMAND}" "-DOUTPUT=${shown_programs_header}" "-DFOLDER=${descriptions_dir}"
            -P "${CMAKE_SOURCE_DIR}/cmake/embed_programs.cmake"
    DEPENDS ${shown_programs} cmake/embed_programs.cmake
    COMMENT "Embedding the programs of the descriptions" VERBATIM)
# By this target it is made without the libraries that the companion links.
add_custom_target(shown_programs_text DEPENDS "${shown_programs_header}")
add_library(pozhil_companion STATIC ${companion_sources} "${shown_programs_header}")
target_include_directories(pozhil_companion PRIVATE "${CMAKE_BINARY_DIR}/generated")
compile_together(pozhil_companion)
# Those that are optimised alike.
set(headers_of_companion pozhil_unhurried)
if(POZHIL_FUZZ)
    set(headers_of_companion pozhil_core)
endif()
begin_with_headers(pozhil_companion ${headers_of_companion})
target_link_libraries(pozhil_companion PUBLIC pozhil_core thrown_report)
# Half the time of a newcomer's first build, for a fifth more in a check.
optimise(pozhil_companion 1)
add_library(language_server STATIC ${language_server_sources})
target_link_libraries(language_server PUBLIC pozhil_companion)
optimise(language_server 1)
compile_together(language_server)
begin_with_headers(language_server ${headers_of_companion})
set_target_properties(language_server PROPERTIES UNITY_BUILD_MODE GROUP)
set_source_files_properties(${language_server_sources} PROPERTIES UNITY_GROUP plain)
foreach(source IN ITEMS answers completion json server)
    set_source_files_properties("${CMAKE_SOURCE_DIR}/src/companion/language_server/${source}.cpp"
                                PROPERTIES UNITY_GROUP json)
endforeach()
find_path(POZHIL_JSON_DIR nlohmann/json.hpp)
if(NOT POZHIL_JSON_DIR)
    message(WARNING "nlohmann/json.hpp is missing: the companion needs it (Debian: nlohmann-json3-dev). "
                    "The compiler builds without it.")
endif()
add_library(thrown_report STATIC src/companion/thrown_report.cpp)
target_include_directories(thrown_report PUBLIC src "உள்ளடக்கம்")

# The table of all commands needs whatever they need.
add_library(companion_commands_table STATIC src/companion/commands.cpp)
target_link_libraries(companion_commands_table PUBLIC language_server)
add_executable(companion src/companion/main.cpp)
target_link_libraries(companion PRIVATE companion_commands_table)
set_target_properties(companion PROPERTIES
    OUTPUT_NAME "பொழில்-துணை"
    RUNTIME_OUTPUT_DIRECTORY "${POZHIL_EXECUTABLE_DIR}")

# The pages of docs/குறிப்பேடு: made by a tool of its own, which scripts/reference.sh runs. Curves are
# drawn by the text that programs carry.
foreach(curves IN ITEMS animation_state animations animation)
    configure_file("src/emitted/${curves}.cpp" "${CMAKE_BINARY_DIR}/generated/curves/${curves}.h" COPYONLY)
endforeach()
file(GLOB reference_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/companion/reference/*.cpp")
list(REMOVE_ITEM reference_sources "${CMAKE_SOURCE_DIR}/src/companion/reference/main.cpp")
add_library(pozhil_reference STATIC EXCLUDE_FROM_ALL ${reference_sources})
target_include_directories(pozhil_reference PRIVATE "${CMAKE_BINARY_DIR}/generated")
optimise(pozhil_reference 1)
compile_together(pozhil_reference)
target_link_libraries(pozhil_reference PUBLIC companion_commands_table)
add_executable(reference_pages EXCLUDE_FROM_ALL src/companion/reference/main.cpp)
target_link_libraries(reference_pages PRIVATE pozhil_reference)

# Names for who can't type Tamil in a terminal yet.
foreach(command IN ITEMS "pozhil=பொழில்" "pozhil-thunai=பொழில்-துணை")
    string(REPLACE "=" ";" command "${command}")
    list(GET command 0 latin)
    list(GET command 1 tamil)
    file(CREATE_LINK "${tamil}" "${POZHIL_EXECUTABLE_DIR}/${latin}" SYMBOLIC)
endforeach()
