# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# The components as Debian packages: cmake --preset package && cmake --build --preset package && cpack --preset package.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME import-module)
set(CPACK_PACKAGE_VENDOR "The ImportModule authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "The ImportModule authors")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL Library Development Tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# The libraries are not there yet when what links them is looked at.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src" "${PROJECT_BINARY_DIR}/src/datamodel")

set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(library_package "libimportmodule${import_module_soversion}")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/deb/triggers")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "reads bank and finance files into a program's data model
ImportModule reads delimited text, QIF, StarMoney exports and the XML lists of
home banking, and writes typed records into a data model that the program
brings.

This package holds the library, and a data model for programs that have none.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libimportmodule-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} ${same_version}")
set(qt_development_package qtbase5-dev)
if(IMPORT_MODULE_QT EQUAL 6)
    set(qt_development_package qt6-base-dev)
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "cmake (>= 3.23), pkgconf, ${qt_development_package}")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "reads bank and finance files - development files
ImportModule reads delimited text, QIF, StarMoney exports and the XML lists of
home banking, and writes typed records into a data model that the program
brings.

This package holds the headers and what CMake and pkg-config need.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME dmimport)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library_package} ${same_version}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "sqlite3")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "imports the files of banks and finance programs into a database
dmimport takes a bank's list of bookings as it comes, finds out how it is
written, and keeps the records in an SQLite file. It shows them, takes an
import back, and hands them on as delimited text, JSON, QIF or a journal for
hledger.

It speaks German.")

# What Debian wants beside that is laid into the folder of each package before it is closed.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/deb/finish.cmake")
set(CPACK_IMPORT_MODULE_SOURCES "${PROJECT_SOURCE_DIR}")
set(CPACK_IMPORT_MODULE_PACKAGES "Library:${library_package}" Development:libimportmodule-dev Tools:dmimport)
include(CPack)
