// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// One finding that a plan rests on, in German, UTF-8, with where it was seen.
struct Reason {
    int line = 0;    ///< from 1; 0 for the file as a whole
    int column = -1; ///< from 0; -1 for none
    std::string text;
};
