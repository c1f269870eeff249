// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/PreparedPlan.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "cli/ColumnOption.h"
#include "cli/FileBytes.h"
#include "cli/IntakeMessages.h"
#include "cli/ProfileChoice.h"
#include "cli/ProfileFolder.h"
#include "cli/SystemText.h"
#include "cli/UsageError.h"

namespace {

bool nothingToRead(std::string_view bytes) { return bytes.find_first_not_of(" \t\r\n") == std::string_view::npos; }

std::optional<ColumnAssignment> assignmentOf(const PreparedFile& prepared) {
    if (prepared.columns.empty())
        return std::nullopt;
    ColumnAssignment columns{};
    for (const PreparedFile::Assignment& pair : prepared.columns)
        columns.m_pairs[columns.m_count++] = {pair.column, *ColumnOption::fieldIndex(pair.field)};
    return columns;
}

/// Makes the library read what the intake prepared.
void adopt(ReadingPlan& plan, IntakeResult result, InputFile& input) {
    plan.traits = &FormatTable::of(result.format);
    PreparedFile& prepared = result.prepared;
    plan.request.fileName =
        prepared.untouched ? input.libraryName(result.format) : input.nameOfPrepared(prepared.text, result.format);
    plan.request.delimiter = prepared.delimiter;
    plan.request.header = prepared.header;
    if (plan.traits->takesColumns())
        plan.request.columns = assignmentOf(prepared);
    plan.census = FileCensus::of(input.path());
    prepared.text = std::string();
    plan.intake = std::move(result);
}

/// The columns with nothing assigned to them. A fixed layout is a plain list then.
void showAsItStands(ReadingPlan& plan, std::string_view bytes, const ReadingOptions& options, InputFile& input) {
    const FormatTraits* traits = plan.traits;
    InspectionOptions inspection = options.forInspection();
    inspection.columns.reset();
    if (traits->firstLineAlwaysHeader)
        inspection.header = true;
    adopt(plan, Intake::readAsItStands(bytes, inspection), input);
    plan.traits = traits;
    plan.request.columns.reset();
}

/// With what a profile of the user's says, if one goes with the file.
IntakeResult inspected(ReadingPlan& plan, std::string_view bytes, const ReadingOptions& options) {
    IntakeResult result = Intake::read(bytes, plan.traits->format, options.forInspection());
    if (result.ownExport && !options.profile)
        return result; // a profile of a bank that has some of the same names is not for it
    if (options.saveProfile && !options.profile)
        return result; // the new profile is made from the file itself
    const ProfileChoice choice = ProfileChoice::of(options.profile, result.headerNames);
    if (choice.message)
        plan.messages.push_back(*choice.message);
    if (!choice.profile)
        return result;
    plan.profile = choice.profile->name;
    const ReadingOptions narrowed = options.completedBy(choice.profile->readingOptions());
    return Intake::read(bytes, plan.traits->format, narrowed.forInspection());
}

void saveProfile(ReadingPlan& plan, const IntakeResult& result, const ReadingOptions& options) {
    const std::string& name = *options.saveProfile;
    if (result.undecided) {
        plan.messages.push_back(
            Message::of(Problem::profileNotSaved, {name, "Es ist nicht entschieden, wie die Datei zu lesen ist."}));
        return;
    }
    try {
        ProfileFolder::save(Profile::of(name, result, options.given));
        plan.messages.push_back(Message::of(Problem::profileSaved, {name}));
    } catch (const UsageError& error) {
        plan.messages.push_back(Message::of(Problem::profileNotSaved, {name, error.what()}));
    }
}

void prepare(ReadingPlan& plan, std::string_view bytes, const ReadingOptions& options, InputFile& input) {
    const bool asItStands = options.unassigned && plan.traits->recordPerLine;
    if (asItStands || nothingToRead(bytes)) {
        showAsItStands(plan, bytes, options, input);
        return;
    }
    IntakeResult result = inspected(plan, bytes, options);
    std::vector<Message> messages = IntakeMessages::of(result, input);
    plan.messages.insert(plan.messages.end(), std::make_move_iterator(messages.begin()),
                         std::make_move_iterator(messages.end()));
    if (options.saveProfile)
        saveProfile(plan, result, options);
    if (!result.undecided) {
        adopt(plan, std::move(result), input);
        return;
    }
    // A preview still shows what stands there.
    if (plan.traits->recordPerLine)
        showAsItStands(plan, bytes, options, input);
    else
        plan.mayBeAsked = false;
    result.prepared.text = std::string();
    plan.intake = std::move(result);
}

} // namespace

ReadingPlan PreparedPlan::of(InputFile& input, const ReadingOptions& options) {
    ReadingPlan plan;
    const auto byName = FormatTable::byExtension(input.argument());
    plan.traits = &FormatTable::of(options.format.value_or(byName.value_or(Import::eFormatCSV)));
    plan.mayBeAsked = input.mayBeAsked();
    if (input.problem()) {
        plan.messages.push_back(*input.problem());
        if (plan.mayBeAsked)
            plan.request.fileName = input.libraryName(plan.traits->format);
        return plan;
    }
    std::string bytes;
    try {
        bytes = FileBytes::read(input.path());
    } catch (const std::system_error& error) {
        plan.mayBeAsked = false;
        plan.messages.push_back(
            Message::of(Problem::fileUnreadable, {input.argument(), systemText(error.code().value())}));
        return plan;
    }
    if (!options.format && !byName)
        plan.traits = &FormatTable::of(Intake::formatByContent(bytes));
    options.noteUseless(*plan.traits, plan.messages);
    prepare(plan, bytes, options, input);
    return plan;
}
