// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HomeBankingImport.h"
#include "report/FileChapter.h"
#include "store/StoreError.h"

namespace BookingsChapter {

/// What the page about an import says of a booking list. `failure` is what the
/// store said that ended the import; null where it did not.
FileChapter of(const XmlDocumentFile& file, const HomeBankingImport& import, const StoreError* failure);

} // namespace BookingsChapter
