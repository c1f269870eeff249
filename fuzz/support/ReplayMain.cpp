// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/FuzzTarget.h"

// Runs a target once for every file named, or found in a folder named. The last
// name on the screen is the one that failed.

namespace {

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& path) {
    if (!std::filesystem::is_directory(path))
        return {path};
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(path))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool replay(const std::filesystem::path& path) {
    std::printf("%s\n", path.c_str());
    std::fflush(stdout); // before the target can end the program
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file)
        return false;
    // A copy of just that size, so that the sanitizers see a read beyond it.
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return true;
}

} // namespace

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const std::filesystem::path& path : filesIn(argv[i])) {
            if (!replay(path)) {
                std::fprintf(stderr, "cannot be read: %s\n", path.c_str());
                return 2;
            }
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 2;
}
