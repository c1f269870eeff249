// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileChecksum.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <openssl/evp.h>

#include "cli/FileBytes.h"

std::string FileChecksum::of(const std::string& path) { return ofBytes(FileBytes::read(path)); }

std::string FileChecksum::ofBytes(std::string_view bytes) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned size = 0;
    if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), &size, EVP_sha256(), nullptr) != 1)
        throw std::runtime_error("SHA-256 is not available");
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (unsigned i = 0; i < size; ++i) {
        text += kDigits[digest[i] / 16];
        text += kDigits[digest[i] % 16];
    }
    return text;
}
