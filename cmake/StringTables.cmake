# lumaroo_string_tables(<target> <bundle> <language> <ts files...>): releases each string table into
# <bundle>/Contents/Resources/<language>.lproj/<table>.qm.
function(lumaroo_string_tables target bundle language)
    foreach(source IN LISTS ARGN)
        get_filename_component(table "${source}" NAME_WE)
        get_filename_component(absolute "${source}" ABSOLUTE)
        set(destination "${bundle}/Contents/Resources/${language}.lproj/${table}.qm")
        add_custom_command(
            OUTPUT "${destination}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${bundle}/Contents/Resources/${language}.lproj"
            COMMAND Qt6::lrelease -silent -nounfinished "${absolute}" -qm "${destination}"
            DEPENDS "${absolute}"
            VERBATIM)
        target_sources(${target} PRIVATE "${destination}")
    endforeach()
endfunction()
