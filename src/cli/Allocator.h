// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// What the allocator of the program is told, where it is mimalloc.
namespace Allocator {

/// Memory that was freed is kept until the end instead of given back and asked for again.
void keepAll();
/// From now on pages of 2 MiB where the system has them to give: a large import touches tens of thousands of small
/// ones. A small one would lose a millisecond by it.
void useLargePages();

} // namespace Allocator
