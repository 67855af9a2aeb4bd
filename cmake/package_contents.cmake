# What a package has otherwise than an installation. What is warmed for one g++ is made where it is
# installed.
file(GLOB warmed "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/lib/pozhil/உள்ளடக்கம்/nanovg/iostream*")
file(REMOVE ${warmed}
     "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/lib/pozhil/உள்ளடக்கம்/nanovg/held_instances.h")

# Pages of the manual and the list of changes are compressed, and links lead to the compressed ones.
set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
file(GLOB_RECURSE documents LIST_DIRECTORIES false "${share}/man/*.1")
foreach(document IN LISTS documents ITEMS "${share}/doc/pozhil/changelog")
    if(IS_SYMLINK "${document}")
        file(READ_SYMLINK "${document}" target)
        file(REMOVE "${document}")
        file(CREATE_LINK "${target}.gz" "${document}.gz" SYMBOLIC)
    else()
        execute_process(COMMAND gzip -9nf "${document}" COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
