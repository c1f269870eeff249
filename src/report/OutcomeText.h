// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "report/FileChapter.h"
#include "report/PageWriter.h"

/// What became of a file, in a word and in a sentence.
namespace OutcomeText {

/// For a column of a table: "übernommen".
std::string word(const FileChapter& file);
PageWriter::Tone tone(const FileChapter& file);
std::string sentence(const FileChapter& file);
/// What the file as a whole failed for; empty where it did not.
std::vector<std::string> causes(const FileChapter& file);

/// Whether a finding is such a cause.
bool isCause(const Finding& finding);

} // namespace OutcomeText
