# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# embed_text(TARGET FILE SYMBOL): makes the text file FILE of the current folder
# the constant `SYMBOL` (a std::string_view) of the generated header FILE.h. The
# program carries its data with it, and the file stays one a person can edit.
function(embed_text target file symbol)
    set(source "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    set(header "${CMAKE_CURRENT_BINARY_DIR}/embedded/${file}.h")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    file(READ "${source}" text)
    # A raw string literal may hold 65,536 characters; compilers join neighbours.
    string(REGEX REPLACE "\n# ---" "\n)text\" R\"text(# ---" text "${text}")
    file(CONFIGURE OUTPUT "${header}" @ONLY CONTENT
"#pragma once
#include <string_view>
inline constexpr std::string_view @symbol@ = R\"text(@text@)text\";
")
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/embedded")
endfunction()
