// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "report/FileChapter.h"

/// The whole of one import: what its page tells. Texts are printable UTF-8.
struct ImportPage {
    std::string store;   ///< its path
    std::string program; ///< with its version
    std::string options; ///< that the person gave
    std::vector<FileChapter> files;
    std::vector<std::string> unread; ///< files whose turn did not come
};
