// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/Message.h"

/// How messages look to a person:
///
///     umsaetze.csv:7: Fehler: „31.02.2004“ ist kein Datum [bad-date]
///         31.02.2004;Miete;-650,00
///         ^^^^^^^^^^
///       Hinweis: Berichtigen Sie die Zeile
namespace MessageText {

/// All messages of a file (its name as the shell's bytes), printable, ending in
/// a line feed. Equal messages of successive lines become one; a hint is given once.
std::string render(std::string_view file, const std::vector<Message>& messages, bool color);

/// A text that concerns no file, in the same form.
std::string renderError(std::string_view text, std::string_view code, bool color);

} // namespace MessageText
