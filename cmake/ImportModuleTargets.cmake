# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# What every target of the project shares: language level, warnings,
# instrumentation, and the helper that adds a test program.

add_library(import_module_options INTERFACE)
target_compile_features(import_module_options INTERFACE cxx_std_20)
target_compile_options(import_module_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${IMPORT_MODULE_WERROR}>:-Werror>)
# Many sources make one unit then: the compiler takes each of them for a header, and a local name that is
# also a file's own elsewhere for a slip. The other builds, one unit per file, keep both warnings.
if(CMAKE_UNITY_BUILD)
    target_compile_options(import_module_options INTERFACE
        -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
if(IMPORT_MODULE_SANITIZE)
    target_compile_options(import_module_options INTERFACE
        -fsanitize=${IMPORT_MODULE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(import_module_options INTERFACE -fsanitize=${IMPORT_MODULE_SANITIZE})
endif()
if(IMPORT_MODULE_BUILD_FUZZ)
    # Counts what is reached and compared; the main function comes with each target.
    target_compile_options(import_module_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(IMPORT_MODULE_COVERAGE)
    target_compile_options(import_module_options INTERFACE --coverage -O0 -fprofile-abs-path)
    target_link_options(import_module_options INTERFACE --coverage)
endif()

# Hardening for what is installed; instrumented builds have better watchmen, and without optimisation the
# checked functions of the C library are not to be had.
# (Decided here: a list of sanitizers has a comma, which an expression takes for its own.)
set(import_module_hardened "$<CONFIG:Release,RelWithDebInfo>")
if(IMPORT_MODULE_SANITIZE)
    set(import_module_hardened 0)
endif()
target_compile_options(import_module_options INTERFACE
    "$<${import_module_hardened}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong;-fstack-clash-protection>")
target_link_options(import_module_options INTERFACE
    "$<${import_module_hardened}:LINKER:-z,relro,-z,now,-z,noexecstack>")
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

# A host loads any version that bears the name it was built with: while the major number is 0, the minor one may break it.
set(import_module_soversion ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(import_module_soversion 0.${PROJECT_VERSION_MINOR})
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# import_module_library(NAME): a library of the project, empty so far, with the
# include root of all rooms.
function(import_module_library name)
    add_library(${name})
    add_library(ImportModule::${name} ALIAS ${name})
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:import_module_options>)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>)
    # What a host includes is C++17; the sources are C++20.
    target_compile_features(${name} PUBLIC cxx_std_17)
    # Calls within a library go straight to it, and may be inlined: nobody replaces one of its functions.
    target_compile_options(${name} PRIVATE $<BUILD_INTERFACE:-fno-semantic-interposition>)
    target_link_options(${name} PRIVATE LINKER:-Bsymbolic-functions
        "LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map")
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${import_module_soversion}
        LINK_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/exports.map")
endfunction()

# import_module_test(NAME SOURCES file... LIBRARIES target...): a GoogleTest
# program whose cases ctest runs one by one, and once more all together under a
# locale with a decimal comma (tests/support).
function(import_module_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    if(NOT TARGET import_module_test_main)
        add_subdirectory(${PROJECT_SOURCE_DIR}/tests/support ${CMAKE_BINARY_DIR}/tests/support)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE
        import_module_options ${arg_LIBRARIES} import_module_test_main)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)

    get_property(locpath GLOBAL PROPERTY IMPORT_MODULE_TEST_LOCPATH)
    set(environment IMPORT_MODULE_TEST_LOCALE=comma)
    if(locpath)
        list(APPEND environment "LOCPATH=${locpath}")
    endif()
    add_test(NAME ${name}.decimal_comma COMMAND ${name})
    set_tests_properties(${name}.decimal_comma PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
endfunction()
