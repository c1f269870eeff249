// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Unquotes a zero-terminated field from its first double quote on: what stands
/// before that quote goes, then every quote goes and keeps the character behind
/// it, whatever it is, so that a doubled quote leaves one:
///   "a""b" -> a"b    x"ab"c -> abc
/// Returns the field's new start.
char* unquoteInPlace(char* firstQuote);
