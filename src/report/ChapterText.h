// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "report/FileChapter.h"
#include "report/PageWriter.h"

/// What a page says about one file.
namespace ChapterText {

void write(const FileChapter& file, PageWriter& out);

} // namespace ChapterText
