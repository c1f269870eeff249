// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/unquoteInPlace.h"

#include <cstring>

#include "framework/AssertTypeSizes.h"

char* unquoteInPlace(char* field) {
    char* read = std::strchr(field, '"');
    if (read == nullptr)
        return field;
    ++read;
    char* const start = read;
    char* write = read;
    for (; *read != '\0'; ++read) {
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
