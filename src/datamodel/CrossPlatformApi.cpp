// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/CrossPlatformApi.h"

namespace {

// Not tolower(): its answer depends on the locale.
int lowered(char c) {
    const int byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte;
}

} // namespace

int CrossPlatformApi::strCmpNoCase(const char* a, const char* b) {
    const char* left = a != nullptr ? a : "";
    const char* right = b != nullptr ? b : "";
    while (*left != '\0' && lowered(*left) == lowered(*right)) {
        ++left;
        ++right;
    }
    return lowered(*left) - lowered(*right);
}

std::string CrossPlatformApi::fileSystemEncoding(const std::string& path) {
    std::string utf8;
    utf8.reserve(path.size());
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8.push_back(c);
        } else {
            utf8.push_back(static_cast<char>(0xC0 | (byte >> 6)));
            utf8.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
        }
    }
    return utf8;
}
