# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# Runs for each package before it is closed: licence, changelog, compressed manual pages, and what lintian is told.

# Runs COMMAND and fails with it.
function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(pair IN LISTS CPACK_IMPORT_MODULE_PACKAGES)
    string(REPLACE ":" ";" pair "${pair}")
    list(GET pair 0 component)
    list(GET pair 1 package)
    set(usr "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr")
    if(NOT IS_DIRECTORY "${usr}")
        continue()
    endif()
    set(doc "${usr}/share/doc/${package}")
    file(MAKE_DIRECTORY "${doc}")

    file(READ "${CPACK_IMPORT_MODULE_SOURCES}/LICENSE" licence)
    string(STRIP "${licence}" licence)
    string(REGEX REPLACE "\n\n" "\n.\n" licence "${licence}")
    string(REPLACE "\n" "\n " licence "${licence}")
    file(WRITE "${doc}/copyright"
"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: ImportModule

Files: *
Copyright: 2026 The ImportModule authors
License: Expat

License: Expat
 ${licence}
")
    # The newest entry alone would be Debian's; the whole story is the project's own.
    file(COPY "${CPACK_IMPORT_MODULE_SOURCES}/CHANGELOG.md" DESTINATION "${doc}")
    file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")
    run(gzip -9nf "${doc}/changelog")
    string(TIMESTAMP built "%a, %d %b %Y %H:%M:%S +0000" UTC) # SOURCE_DATE_EPOCH rules where it is set
    file(WRITE "${doc}/changelog.Debian"
"import-module (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Built from the sources of version ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT} <nobody@localhost>  ${built}
")
    run(gzip -9nf "${doc}/changelog.Debian")

    file(GLOB pages "${usr}/share/man/man*/*.[1-9]")
    foreach(page IN LISTS pages)
        run(gzip -9nf "${page}")
    endforeach()

    file(MAKE_DIRECTORY "${usr}/share/lintian/overrides")
    configure_file("${CPACK_IMPORT_MODULE_SOURCES}/packaging/deb/${component}.lintian-overrides"
        "${usr}/share/lintian/overrides/${package}" COPYONLY)
    # cpack makes folders as the umask has it.
    run(find "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}" -type d -exec chmod 0755 "{}" "+")
endforeach()
