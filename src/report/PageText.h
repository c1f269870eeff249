// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "report/ImportPage.h"
#include "report/PageWriter.h"

/// What the page about an import says, in German, and in which order.
namespace PageText {

void write(const ImportPage& page, PageWriter& out);

} // namespace PageText
