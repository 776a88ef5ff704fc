# Where the bundles are put together in the build tree, and where they are installed.

set(LUMAROO_PANE_BUNDLE ${CMAKE_BINARY_DIR}/Lumaroo.prefPane)
set(LUMAROO_HOST_BUNDLE ${CMAKE_BINARY_DIR}/Settings.app)
set(LUMAROO_INSTALL_DIR lib/lumaroo)
set(LUMAROO_INSTALL_PANES ${LUMAROO_INSTALL_DIR}/PreferencePanes)

# The platform libraries stand beside the bundles in the build tree, and in lib/lumaroo when installed.
set(LUMAROO_LIBRARY_DIR ${CMAKE_BINARY_DIR}/lib)
# First of all: the agent's copy of one of them lies in the pane's bundle, beside the updater that others link.
set(CMAKE_BUILD_RPATH ${LUMAROO_LIBRARY_DIR})

# lumaroo_bundle_file(<target> <bundle> <source file> <path inside the bundle>): copies a file into a bundle at build time.
function(lumaroo_bundle_file target bundle source inside)
    get_filename_component(absolute "${source}" ABSOLUTE)
    set(destination "${bundle}/${inside}")
    add_custom_command(
        OUTPUT "${destination}"
        COMMAND ${CMAKE_COMMAND} -E copy "${absolute}" "${destination}"
        DEPENDS "${absolute}"
        VERBATIM)
    set_property(TARGET ${target} APPEND PROPERTY LUMAROO_BUNDLE_FILES "${destination}")
    target_sources(${target} PRIVATE "${destination}")
endfunction()
