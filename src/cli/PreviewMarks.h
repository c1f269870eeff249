// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "cli/FileReading.h"
#include "cli/RecordMark.h"
#include "store/Store.h"

/// How every record of a file stands to a store, without importing it.
struct PreviewMarks {
    struct Row {
        std::optional<std::size_t> line;
        std::optional<RecordMark> mark; ///< none: the import would refuse the record
    };
    std::vector<Row> rows; ///< one per record that the library makes, in order

    /// `store` may be null: then everything is new. Throws StoreError.
    static PreviewMarks of(const FileReading& reading, Store* store);

    std::size_t count(Resemblance::Mark mark) const;
    std::size_t refused() const;
};
