# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# What `cmake --install` lays out. Components: Library (what a program needs that was built with it), Development, Tools.

include(CMakePackageConfigHelpers)

set(import_module_libraries DmBasicServices Dm ImportModule)
set(import_module_includedir "${CMAKE_INSTALL_INCLUDEDIR}/import-module")
# Distributions have other places for it.
set(IMPORT_MODULE_ZSH_COMPLETIONS "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING "Where the completion for zsh goes")
set(import_module_cmakedir "${CMAKE_INSTALL_LIBDIR}/cmake/ImportModule")

# public_headers(TARGET HEADER...): below src/, and with the same paths below the one folder that hosts include.
function(public_headers target)
    list(TRANSFORM ARGN PREPEND "${PROJECT_SOURCE_DIR}/src/")
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${ARGN})
endfunction()
public_headers(ImportModule ${import_module_headers})
public_headers(Dm ${import_module_model_headers})
target_include_directories(DmBasicServices INTERFACE "$<INSTALL_INTERFACE:${import_module_includedir}>")

# g++ describes a class with virtual operations only where its table is made, which may be in no library at all. The
# record of what hosts are built against (scripts/abi.sh) needs each class wherever it is used.
foreach(library IN LISTS import_module_libraries)
    target_compile_options(${library} PRIVATE
        "$<BUILD_INTERFACE:$<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:RelWithDebInfo>>:-femit-class-debug-always>>")
endforeach()

# The libraries lie together, and the program finds them from where it is, wherever the whole is moved to.
# Distributions want no such path: -DCMAKE_SKIP_INSTALL_RPATH=ON.
file(RELATIVE_PATH from_bin_to_lib "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set_target_properties(${import_module_libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS ${import_module_libraries} EXPORT ImportModuleTargets
    LIBRARY COMPONENT Library NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development
    FILE_SET HEADERS DESTINATION "${import_module_includedir}" COMPONENT Development)
install(EXPORT ImportModuleTargets NAMESPACE ImportModule::
    DESTINATION "${import_module_cmakedir}" COMPONENT Development)

# Whoever links our archives links Qt as well; whoever loads our libraries need not know.
set(import_module_cmake_dependencies "")
set(import_module_pc_requires_private "")
if(NOT BUILD_SHARED_LIBS)
    set(import_module_cmake_dependencies "find_dependency(Qt${IMPORT_MODULE_QT} ${import_module_qt_version} COMPONENTS Core Xml)")
    set(import_module_pc_requires_private "Qt${IMPORT_MODULE_QT}Core Qt${IMPORT_MODULE_QT}Xml")
endif()

configure_package_config_file(cmake/ImportModuleConfig.cmake.in "${PROJECT_BINARY_DIR}/ImportModuleConfig.cmake"
    INSTALL_DESTINATION "${import_module_cmakedir}" NO_SET_AND_CHECK_MACRO)
# As with the name that programs load: below 1.0 the minor number may break a host.
set(compatibility SameMajorVersion)
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(compatibility SameMinorVersion)
endif()
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ImportModuleConfigVersion.cmake" COMPATIBILITY ${compatibility})
install(FILES "${PROJECT_BINARY_DIR}/ImportModuleConfig.cmake" "${PROJECT_BINARY_DIR}/ImportModuleConfigVersion.cmake"
    DESTINATION "${import_module_cmakedir}" COMPONENT Development)

# pkg_config_file(NAME DESCRIPTION REQUIRES REQUIRES_PRIVATE): the prefix is found from where the file lies.
function(pkg_config_file name description requires requires_private)
    set(pkgconfigdir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    file(RELATIVE_PATH up "${CMAKE_INSTALL_PREFIX}/${pkgconfigdir}" "${CMAKE_INSTALL_PREFIX}")
    string(REGEX REPLACE "/$" "" up "${up}")
    configure_file(cmake/library.pc.in "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${pkgconfigdir}" COMPONENT Development)
endfunction()
pkg_config_file(ImportModule "${PROJECT_DESCRIPTION}" "" "${import_module_pc_requires_private}")
pkg_config_file(Dm "In-memory data model that ImportModule can write to" "DmBasicServices" "")
pkg_config_file(DmBasicServices "Dates, texts, paths and bounds below the data model" "" "")

# The pages and the projects, with whatever they lead to; what builds them in here stays here.
install(FILES README.md CONTRIBUTING.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Development)
install(FILES bench/README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}/bench" COMPONENT Development)
install(DIRECTORY data DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Development)
install(DIRECTORY tests/consumer DESTINATION "${CMAKE_INSTALL_DOCDIR}/tests" COMPONENT Development)
install(DIRECTORY docs examples DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Development
    PATTERN docs/man EXCLUDE
    PATTERN docs/CMakeLists.txt EXCLUDE
    PATTERN docs/Doxyfile.in EXCLUDE
    PATTERN docs/api/groups.dox EXCLUDE
    PATTERN examples/CMakeLists.txt EXCLUDE)

if(IMPORT_MODULE_BUILD_PROGRAM)
    set_target_properties(dmimport PROPERTIES INSTALL_RPATH "$ORIGIN/${from_bin_to_lib}")
    install(TARGETS dmimport RUNTIME COMPONENT Tools)
    install(FILES docs/man/dmimport.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT Tools)
    install(FILES docs/man/dmimport-store.5 DESTINATION "${CMAKE_INSTALL_MANDIR}/man5" COMPONENT Tools)
    install(FILES packaging/completions/dmimport.bash RENAME dmimport
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT Tools)
    install(FILES packaging/completions/_dmimport
        DESTINATION "${IMPORT_MODULE_ZSH_COMPLETIONS}" COMPONENT Tools)
    install(FILES packaging/completions/dmimport.fish
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT Tools)
    install(FILES packaging/mime/import-module.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" COMPONENT Tools)
endif()
