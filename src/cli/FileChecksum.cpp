// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileChecksum.h"

#include <array>
#include <memory>
#include <new>
#include <stdexcept>

#include <openssl/evp.h>

#include "cli/FileLines.h"

namespace {

class Sha256 {
public:
    Sha256() : m_context(EVP_MD_CTX_new()) {
        if (m_context == nullptr)
            throw std::bad_alloc();
        check(EVP_DigestInit_ex(m_context.get(), EVP_sha256(), nullptr));
    }

    void add(std::string_view bytes) { check(EVP_DigestUpdate(m_context.get(), bytes.data(), bytes.size())); }

    std::string hexadecimal() {
        std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
        unsigned size = 0;
        check(EVP_DigestFinal_ex(m_context.get(), digest.data(), &size));
        constexpr char kDigits[] = "0123456789abcdef";
        std::string text;
        for (unsigned i = 0; i < size; ++i) {
            text += kDigits[digest[i] / 16];
            text += kDigits[digest[i] % 16];
        }
        return text;
    }

private:
    static void check(int result) {
        if (result != 1)
            throw std::runtime_error("SHA-256 is not available");
    }

    struct Free {
        void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
    };
    std::unique_ptr<EVP_MD_CTX, Free> m_context;
};

} // namespace

std::string FileChecksum::of(const std::string& path) {
    Sha256 sum;
    FileLines::readBlocks(path, [&](std::string_view block) { sum.add(block); });
    return sum.hexadecimal();
}

std::string FileChecksum::ofBytes(std::string_view bytes) {
    Sha256 sum;
    sum.add(bytes);
    return sum.hexadecimal();
}
