# Run by cpack once the Debian package is made. cpack gives it scripts that call ldconfig, since libraries lie below usr/lib; but these are for our own
# programs, which know where they are.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(folder "${package}.content")
    file(REMOVE_RECURSE "${folder}")
    execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${folder}" COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE "${folder}/DEBIAN/postinst" "${folder}/DEBIAN/postrm")
    execute_process(COMMAND dpkg-deb --root-owner-group --build "${folder}" "${package}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE "${folder}")
endforeach()
