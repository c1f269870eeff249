// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "cli/Message.h"
#include "cli/RecordMark.h"
#include "datamodel/RecordNode.h"

/// Which of an import's records the store is to take: those that it lacks.
struct NewOnly {
    std::vector<const RecordNode*> leftOut; ///< in order
    std::vector<std::size_t> lines;         ///< of those that stay
    std::vector<Message> messages;          ///< which were left out, and which are doubtful
    std::size_t known = 0;                  ///< left out because the store has them
    std::size_t withoutRoom = 0;            ///< left out because its table is full

    /// `marks` and `lines` belong to `records`; the latter may be empty. `room` is
    /// how many the store can take.
    static NewOnly of(const std::vector<RecordNode*>& records, const std::vector<RecordMark>& marks,
                      const std::vector<std::size_t>& lines, std::size_t room);
};
