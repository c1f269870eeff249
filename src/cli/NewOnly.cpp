// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/NewOnly.h"

#include <optional>

NewOnly NewOnly::of(const std::vector<RecordNode*>& records, const std::vector<RecordMark>& marks,
                    const std::vector<std::size_t>& lines, std::size_t room) {
    NewOnly result;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const auto line = i < lines.size() ? std::optional(lines[i]) : std::nullopt;
        const RecordMark& mark = marks[i];
        if (mark.isKnown()) {
            ++result.known;
            result.messages.push_back(Message::of(Problem::knownRecord, {mark.place(), mark.reason()}, line));
        } else if (room == 0) {
            ++result.withoutRoom;
            result.messages.push_back(Message::of(Problem::tableFull, {}, line));
        } else {
            --room;
            if (line)
                result.lines.push_back(*line);
            if (mark.isDoubtful())
                result.messages.push_back(Message::of(Problem::doubtfulRecord, {mark.place(), mark.reason()}, line));
            continue;
        }
        result.leftOut.push_back(records[i]);
    }
    return result;
}
