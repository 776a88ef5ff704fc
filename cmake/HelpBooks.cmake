# lumaroo_help_book(<target> <source folder> <destination folder>): compresses the book that the folder's Help.qhp lists
# into <destination folder>/Help.qch.
function(lumaroo_help_book target source destination)
    file(GLOB_RECURSE pages CONFIGURE_DEPENDS ${source}/*)
    add_custom_command(
        OUTPUT "${destination}/Help.qch"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${destination}"
        COMMAND Qt6::qhelpgenerator -s "${source}/Help.qhp" -o "${destination}/Help.qch"
        DEPENDS ${pages}
        VERBATIM)
    target_sources(${target} PRIVATE "${destination}/Help.qch")
endfunction()
