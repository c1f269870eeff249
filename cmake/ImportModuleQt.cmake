# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# Which Qt reads the home-banking documents: Qt${IMPORT_MODULE_QT}::Core and Qt${IMPORT_MODULE_QT}::Xml.

set(IMPORT_MODULE_QT 5 CACHE STRING "Major version of Qt that the library is built with: 5 or 6")
set_property(CACHE IMPORT_MODULE_QT PROPERTY STRINGS 5 6)
# The oldest ones that are tested.
set(import_module_qt5_version 5.15)
set(import_module_qt6_version 6.4)
if(NOT IMPORT_MODULE_QT MATCHES "^[56]$")
    message(FATAL_ERROR "IMPORT_MODULE_QT is \"${IMPORT_MODULE_QT}\": the library is built with Qt 5 or with Qt 6.")
endif()
if(IMPORT_MODULE_QT EQUAL 6 AND IMPORT_MODULE_BUILD_BENCH)
    message(FATAL_ERROR "The benchmarks measure Qt 5: IMPORT_MODULE_BUILD_BENCH needs IMPORT_MODULE_QT=5.")
endif()
set(import_module_qt_version ${import_module_qt${IMPORT_MODULE_QT}_version})
# Two versions of Qt may be found beside each other; names without a version would belong to the first.
set(QT_NO_CREATE_VERSIONLESS_TARGETS ON)
set(QT_NO_CREATE_VERSIONLESS_FUNCTIONS ON)
find_package(Qt${IMPORT_MODULE_QT} ${import_module_qt_version} REQUIRED COMPONENTS Core Xml)
