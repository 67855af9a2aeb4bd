# The emitted files in the order in which they stand in a generated file. Each needs only what
# stands before it. Files for the browser alone are named web_*.
set(EMITTED_NAMES
    includes
    web_headers
    globals
    navigation
    input_state
    base_structures
    any_to_string
    time_text
    web_boilerplate)
list(TRANSFORM EMITTED_NAMES REPLACE "(.+)" "${CMAKE_CURRENT_LIST_DIR}/\\1.cpp"
     OUTPUT_VARIABLE EMITTED_FILES)
