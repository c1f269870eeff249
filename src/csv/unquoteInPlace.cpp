// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/unquoteInPlace.h"

#include "framework/AssertTypeSizes.h"

char* unquoteInPlace(char* firstQuote) {
    char* const start = firstQuote + 1;
    char* write = start;
    for (const char* read = start; *read != '\0'; ++read) {
        if (*read == '"') {
            ++read;
            if (*read == '\0') // the closing quote
                break;
        }
        *write++ = *read;
    }
    *write = '\0';
    return start;
}
