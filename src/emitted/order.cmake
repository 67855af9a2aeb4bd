# The emitted files in the order in which they stand in a generated file: as the table of sections
# in src/generator/frame.cpp names them, then what the web form writes. Each needs only what stands
# before it. Files for the browser alone are named web_*.
set(order_sources "${CMAKE_SOURCE_DIR}/src/generator/frame.cpp"
    "${CMAKE_SOURCE_DIR}/src/ui/web_form.cpp")
set_property(DIRECTORY "${CMAKE_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
             ${order_sources})
set(EMITTED_NAMES "")
foreach(source IN LISTS order_sources)
    file(STRINGS "${source}" lines REGEX "emitted::[a-z_]+" ENCODING UTF-8)
    foreach(line IN LISTS lines)
        string(REGEX MATCH "emitted::([a-z_]+)" matched "${line}")
        list(APPEND EMITTED_NAMES "${CMAKE_MATCH_1}")
    endforeach()
endforeach()
list(REMOVE_DUPLICATES EMITTED_NAMES)
list(TRANSFORM EMITTED_NAMES REPLACE "(.+)" "${CMAKE_CURRENT_LIST_DIR}/\\1.cpp"
     OUTPUT_VARIABLE EMITTED_FILES)

# A file that no section names would never be emitted.
file(GLOB emitted_present CONFIGURE_DEPENDS "${CMAKE_CURRENT_LIST_DIR}/*.cpp")
list(REMOVE_ITEM emitted_present ${EMITTED_FILES})
if(emitted_present)
    message(FATAL_ERROR "in no section of the generated file: ${emitted_present}")
endif()
