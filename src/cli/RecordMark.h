// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/JsonText.h"
#include "matching/Resemblance.h"

/// How a record of a file stands to the store, and which stored record it resembles.
struct RecordMark {
    Resemblance resemblance;
    std::optional<int> uniqueId; ///< of the stored record, like what follows
    std::optional<int> session;
    std::optional<int> line;
    std::string number; ///< the bank's, UTF-8; bookings only

    bool isKnown() const { return resemblance.mark == Resemblance::Mark::known; }
    bool isDoubtful() const { return resemblance.mark == Resemblance::Mark::doubtful; }

    const char* code() const;       ///< "new", "known" or "doubtful"
    const char* reasonCode() const; ///< stable; empty for a new one
    /// "Nr. 7 (Sitzung 3, Zeile 12)": the stored record.
    std::string place() const;
    /// Why it is known or doubtful, German.
    std::string reason() const;

    /// The fields that tell of the mark; to be added to an object.
    void addTo(Json& object) const;
};
