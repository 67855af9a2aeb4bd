# What an installation holds: the companions beside the executables in lib/pozhil, links to these among the
# commands, pages of the manual, completion for bash. All of it may be moved as a whole.
set(installed "lib/pozhil")
install(TARGETS pozhil companion RUNTIME DESTINATION "${installed}")
# What is prepared for em++ knows its folder, so it is made there.
install(DIRECTORY "உள்ளடக்கம்" "திரட்டு" "தொகுப்புகள்" DESTINATION "${installed}"
        PATTERN ".gitkeep" EXCLUDE PATTERN "*.stamp" EXCLUDE
        PATTERN "warmed_web" EXCLUDE)
install(FILES src/error_handler.cpp src/held_bodies.h src/held_runtime.h src/instances.h src/plain_casts.h
        src/warmed_header.h src/warmed_web.h
        DESTINATION "${installed}/src")
install(FILES ${EMITTED_FILES} DESTINATION "${installed}/src/emitted")
install(PROGRAMS scripts/prepare_objects.sh scripts/warm_header.sh scripts/warm_web.sh
        DESTINATION "${installed}/scripts")
install(FILES scripts/messages.sh DESTINATION "${installed}/scripts")

# Editors that look in the system's folders know the language at once.
foreach(editor IN ITEMS vim/vimfiles nvim/site)
    install(DIRECTORY editors/vim/ DESTINATION "share/${editor}")
endforeach()
install(FILES editors/kate/pozhil.xml DESTINATION share/org.kde.syntax-highlighting/syntax)

# Each command has a Tamil name and a Latin one, and a page of the manual in both languages.
set(commands "pozhil=பொழில்" "pozhil-thunai=பொழில்-துணை")
set(links "")
foreach(command IN LISTS commands)
    string(REPLACE "=" ";" names "${command}")
    list(GET names 0 latin)
    list(GET names 1 tamil)
    install(FILES "packaging/man/${latin}.1" DESTINATION share/man/man1)
    install(FILES "packaging/man/ta/${latin}.1" DESTINATION share/man/ta/man1)
    list(APPEND links "bin/${latin}=../${installed}/${tamil}" "bin/${tamil}=../${installed}/${tamil}"
         "share/man/man1/${tamil}.1=${latin}.1" "share/man/ta/man1/${tamil}.1=${latin}.1")
    set(completions share/bash-completion/completions)
    install(FILES packaging/completion/pozhil DESTINATION "${completions}" RENAME "${latin}")
    list(APPEND links "${completions}/${tamil}=${latin}")
endforeach()
install(CODE "
    foreach(link IN ITEMS ${links})
        string(REPLACE = \";\" link \"\${link}\")
        list(GET link 0 name)
        list(GET link 1 target)
        set(name \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/\${name}\")
        get_filename_component(folder \"\${name}\" DIRECTORY)
        file(MAKE_DIRECTORY \"\${folder}\")
        file(CREATE_LINK \"\${target}\" \"\${name}\" SYMBOLIC)
    endforeach()")
