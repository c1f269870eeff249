// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <link.h>

/// File names, without folders, of the shared libraries in this process.
inline std::vector<std::string> loadedLibraries() {
    std::vector<std::string> names;
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* found) {
            const std::string path = info->dlpi_name;
            static_cast<std::vector<std::string>*>(found)->push_back(path.substr(path.rfind('/') + 1));
            return 0;
        },
        &names);
    return names;
}
