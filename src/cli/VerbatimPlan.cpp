// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/VerbatimPlan.h"

#include <system_error>

#include "cli/SystemText.h"

namespace {

/// The library drops what no "^" ends, without a word.
void noteOpenRecord(ReadingPlan& plan) {
    const FileCensus::LastContent& last = plan.census.lastContent();
    if (last.line != 0 && last.first != '^' && last.first != '!')
        plan.messages.push_back(Message::of(Problem::recordOpen, {}, last.line));
}

void examineLines(const InputFile& input, ReadingPlan& plan) {
    try {
        plan.census = FileCensus::of(input.path());
    } catch (const std::system_error& error) {
        plan.messages.push_back(
            Message::of(Problem::fileUnreadable, {input.argument(), systemText(error.code().value())}));
        return;
    }
    if (!plan.traits->recordPerLine) {
        noteOpenRecord(plan);
        return;
    }
    for (const std::size_t line : plan.census.withNul())
        plan.messages.push_back(Message::of(Problem::nulByte, {}, line));
    for (const std::size_t line : plan.census.withOpenQuote())
        plan.messages.push_back(Message::of(Problem::unbalancedQuote, {}, line));
}

} // namespace

ReadingPlan VerbatimPlan::of(InputFile& input, const ReadingOptions& options) {
    ReadingPlan plan;
    plan.traits = &FormatTable::of(options.format.value_or(FormatTable::ofFileName(input.argument())));
    plan.mayBeAsked = input.mayBeAsked();
    if (input.problem())
        plan.messages.push_back(*input.problem());
    else
        examineLines(input, plan);
    options.noteUseless(*plan.traits, plan.messages);
    if (!plan.mayBeAsked)
        return plan;

    // The raw columns of a fixed layout are shown by reading it as a plain list.
    const FormatTraits& traits = *plan.traits;
    const bool asPlainList = options.unassigned && traits.recordPerLine;
    plan.request.fileName = input.libraryName(asPlainList ? Import::eFormatCSV : traits.format);
    plan.request.header = options.header.value_or(false) || (asPlainList && traits.firstLineAlwaysHeader);
    if (traits.takesColumns())
        plan.request.columns = options.columns;
    if (traits.delimiter != 0)
        plan.request.delimiter = traits.delimiter;
    else if (options.delimiter)
        plan.request.delimiter = *options.delimiter;
    return plan;
}
