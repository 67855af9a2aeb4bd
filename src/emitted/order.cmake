# The emitted files in the order in which they stand in a generated file. Each needs only what
# stands before it. Files for the browser alone are named web_*.
set(EMITTED_NAMES
    includes
    web_text_layer
    globals
    navigation
    input_state
    web_entry_points
    web_keyboard
    base_structures
    runtime_failure
    # Dynamic values
    any_to_string
    any_to_json
    type_names
    number_values
    comparison
    indices
    arithmetic
    module_path
    conversion
    # The library
    files
    text
    time
    input
    length
    element_access
    properties
    rounding
    removal
    # The frame of an application
    scroll_state
    web_boilerplate
    web_background_video
    web_frame
    web_main)
list(TRANSFORM EMITTED_NAMES REPLACE "(.+)" "${CMAKE_CURRENT_LIST_DIR}/\\1.cpp"
     OUTPUT_VARIABLE EMITTED_FILES)
