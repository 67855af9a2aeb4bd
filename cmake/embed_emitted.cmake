# Writes a header that holds each emitted file as a string constant:
#   cmake -DOUTPUT=header -DNAMESPACE=name -DFILES="a.cpp;b.cpp" [-DBODIES=ON] -P embed_emitted.cmake
# The constant is named after the file. A comment at the head of a file that an empty line closes
# tells the reader of the file what it is, and isn't emitted; all other comments are. With BODIES
# each file is one function, and what is emitted is what stands between its braces, at the margin.
# A raw string may be of any length for g++ and clang++.
set(text "// Made from src/emitted by the build. Never edited.\n#pragma once\n\n#include <string_view>\n\nnamespace ${NAMESPACE} {\n")
foreach(file IN LISTS FILES)
    get_filename_component(name "${file}" NAME_WE)
    file(READ "${file}" content)
    if(content MATCHES "^(//[^\n]*\n)+\n")
        string(LENGTH "${CMAKE_MATCH_0}" head_length)
        string(SUBSTRING "${content}" ${head_length} -1 content)
    endif()
    if(BODIES)
        if(NOT content MATCHES "^void ${name}\\(\\) {(\n.*\n)}\n$")
            message(FATAL_ERROR "${file}: not one function 'void ${name}() { ... }'")
        endif()
        string(REGEX REPLACE "\n    " "\n" content "${CMAKE_MATCH_1}")
        string(SUBSTRING "${content}" 1 -1 content)
    endif()
    string(APPEND text "\ninline constexpr std::string_view ${name} = R\"EMITTED(${content})EMITTED\";\n")
endforeach()
string(APPEND text "\n}  // namespace ${NAMESPACE}\n")
file(WRITE "${OUTPUT}.new" "${text}")
file(COPY_FILE "${OUTPUT}.new" "${OUTPUT}" ONLY_IF_DIFFERENT)
file(REMOVE "${OUTPUT}.new")
