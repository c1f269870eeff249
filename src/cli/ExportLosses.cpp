// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ExportLosses.h"

#include <iterator>
#include <string>

namespace {

struct Told {
    Loss loss;
    Problem problem;
};
constexpr Told kTold[] = {
    {Loss::undated, Problem::exportUndated},           {Loss::dayOutside, Problem::exportDayOutside},
    {Loss::noAmount, Problem::exportNoAmount},         {Loss::amountRounded, Problem::exportAmountRounded},
    {Loss::textChanged, Problem::exportTextChanged},   {Loss::textCut, Problem::exportTextCut},
    {Loss::fieldDropped, Problem::exportFieldDropped},
};
static_assert(std::size(kTold) == static_cast<std::size_t>(Loss::count), "every loss is told");

constexpr std::size_t kMostRanges = 20; // nobody reads more

/// "4, 7-9, 12 und weitere".
std::string ranges(const std::vector<std::int32_t>& ids) {
    std::string text;
    std::size_t told = 0;
    for (std::size_t first = 0; first < ids.size(); ++told) {
        if (told == kMostRanges)
            return text + " und weitere";
        std::size_t last = first;
        while (last + 1 < ids.size() && ids[last + 1] == ids[last] + 1)
            ++last;
        text += (text.empty() ? "" : ", ") + std::to_string(ids[first]);
        if (last != first)
            text += "-" + std::to_string(ids[last]);
        first = last + 1;
    }
    return text;
}

/// "3 Datensätze (UniqueID 4, 7-8)"; bookings are records here as well.
std::string recordsOf(const Losses::Ids& ids) {
    std::vector<std::int32_t> known;
    for (const auto& id : ids) {
        if (id)
            known.push_back(*id);
    }
    std::string text = std::to_string(ids.size()) + (ids.size() == 1 ? " Datensatz" : " Datensätze");
    if (!known.empty())
        text += " (UniqueID " + ranges(known) + ")";
    return text;
}

} // namespace

std::vector<Message> ExportLosses::messages(const Losses& losses) {
    std::vector<Message> messages;
    for (const Told& told : kTold) {
        const Losses::Ids& ids = losses.of(told.loss);
        if (!ids.empty())
            messages.push_back(Message::of(told.problem, {recordsOf(ids)}));
    }
    return messages;
}
