# lumaroo_add_tests(<kind> [SESSION <options>] [LIBRARIES ...]): one GoogleTest program, and one ctest test, for each
# source file of the calling folder. SESSION are the parts of a private session that tests/support/with-session brings up.
function(lumaroo_add_tests kind)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SESSION;LIBRARIES")
    file(GLOB sources CONFIGURE_DEPENDS "*.cpp")
    foreach(source IN LISTS sources)
        get_filename_component(name "${source}" NAME_WE)
        lumaroo_add_test(${kind}-${name} "${source}" SESSION ${arg_SESSION} LIBRARIES ${arg_LIBRARIES})
        set_tests_properties(${kind}-${name} PROPERTIES LABELS ${kind})
    endforeach()
endfunction()

function(lumaroo_add_test name source)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SESSION;LIBRARIES")
    add_executable(${name} "${source}")
    # Few tests declare meta-objects; the others are spared a run of moc.
    file(STRINGS "${source}" meta_objects REGEX "Q_OBJECT|Q_GADGET")
    if(NOT meta_objects)
        set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    endif()
    target_link_libraries(${name} PRIVATE test-support ${arg_LIBRARIES})
    target_precompile_headers(${name} REUSE_FROM test-support)
    lumaroo_add_run(${name} ${name} SESSION ${arg_SESSION})
endfunction()

# lumaroo_add_run(<name> <program> [SESSION <options>]): a ctest test that runs a test's program.
function(lumaroo_add_run name program)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SESSION")
    add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/support/with-session ${arg_SESSION} -- $<TARGET_FILE:${program}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "LUMAROO_BUILD=${CMAKE_BINARY_DIR};LUMAROO_SOURCE=${CMAKE_SOURCE_DIR}")
endfunction()
