// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileImport.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "cli/FullTexts.h"
#include "cli/HostText1252.h"
#include "cli/LibraryFailure.h"
#include "cli/LineAccount.h"
#include "cli/ModelTables.h"
#include "cli/NewOnly.h"
#include "cli/RefusalMessages.h"
#include "cli/SafeText.h"
#include "cli/SessionBook.h"
#include "cli/StoreComparison.h"
#include "cli/SystemText.h"
#include "cli/TrialModel.h"
#include "datamodel/DataModel.h"
#include "datamodel/TableSpec.h"

FileImport::FileImport(const FileReading& reading, const ImportWishes& wishes) : m_reading(reading), m_wishes(wishes) {
    m_report.file = reading.argument();
    m_report.format = reading.traits().format;
    m_report.messages = reading.messages();
    m_report.balanceFits = reading.intake() != nullptr && reading.intake()->balance == BalanceProof::certified;
}

void FileImport::run(StoreAtPath& storeAtPath, const Console& console) {
    if (m_reading.isRefused() || !takeChecksum()) {
        askForWords();
        m_report.lines = LineAccount::of(m_reading, m_report);
        return;
    }
    Store& store = storeAtPath.forWriting();
    if (m_wishes.again || m_wishes.newOnly || !wasImportedBefore(store))
        importInto(store, console);
    m_report.lines = LineAccount::of(m_reading, m_report);
    const bool keeps = (!m_failed && !broughtNothingNew()) || (m_wishes.keepPartial && m_report.importedCount > 0);
    if (keeps) {
        store.commit();
        m_report.committed = true;
    } else {
        store.rollback();
        m_report.sessionId = 0;
    }
}

/// A file that cannot be opened harms nobody; the library has a text for it.
void FileImport::askForWords() {
    if (!m_reading.isUnreadable() || !m_reading.mayBeAsked())
        return;
    LibraryRun run;
    m_report.errorText = m_reading.simulate(run).errorText;
}

bool FileImport::takeChecksum() {
    try {
        m_checksum = m_reading.checksum();
        return true;
    } catch (const std::system_error& error) {
        fail(Message::of(Problem::fileUnreadable, {m_report.file, systemText(error.code().value())}));
        return false;
    }
}

/// Repeating a file by mistake is the commonest way to double one's books.
bool FileImport::wasImportedBefore(Store& store) {
    const std::optional<SessionBook::Session> before = SessionBook::find(store, m_checksum);
    if (before)
        fail(Message::of(Problem::importedBefore, {std::to_string(before->number), before->day, before->fileName}));
    return before.has_value();
}

void FileImport::importInto(Store& store, const Console& console) {
    std::optional<TrialModel> trial;
    if (m_wishes.newOnly)
        trial.emplace(store.model());
    DataManager& model = trial ? trial->model() : store.model();
    const bool takesUndated = m_wishes.allowUndated || m_reading.mayBeUndated();
    model.model().schema().table("DataSets")->row.setTakesZeroDate("Datum", takesUndated);

    Progress progress(console.showsProgress(), SafeText::printable(m_report.file), m_reading.census().readLines());
    const NewRecords added(model);
    const ModelWatch watch(model.model(), progress);
    LibraryRun run;
    const RunOutcome outcome = m_reading.import(run, model.root(), m_wishes.info);
    if (!run.hasModule())
        fail(Message::of(Problem::formatUnsupported, {FormatTable::labelOf(m_reading.traits().format)}));
    else
        judge(outcome, watch, added, store);
    added.setFileName(HostText1252::transliterated(m_report.file));
    if (trial && !broughtNothingNew())
        trial->moveInto(store.model());
}

void FileImport::judge(const RunOutcome& outcome, const ModelWatch& watch, const NewRecords& added, Store& store) {
    m_report.result = outcome.result;
    m_report.importedCount = outcome.importedCount;
    m_report.errorText = outcome.errorText;
    m_report.sessionId = added.sessionId();
    m_report.refusedCount = m_reading.refusedBefore() + watch.refusals().size();
    std::vector<Message> refusals = RefusalMessages::of(watch.refusals(), m_reading);
    m_report.messages.insert(m_report.messages.end(), refusals.begin(), refusals.end());

    // A format that writes after reading stops at the first record that it cannot write.
    const bool stopped = !m_reading.traits().recordPerLine && !watch.refusals().empty();
    const bool nothing = m_report.refusedCount > 0 && m_report.importedCount == 0;
    m_failed = m_failed || stopped || nothing;
    if (watch.refusedBookkeeping())
        fail(Message::of(Problem::bookkeepingRefused, {*watch.refusedBookkeeping()}));
    if (outcome.result == 0 && watch.refusals().empty()) // a refused record that ended the import has its message
        fail(LibraryFailure::message(m_reading, outcome));
    m_failed = m_failed || outcome.result == 0;
    std::vector<std::size_t> lines = linesOfStored(watch, added);
    FullTexts::restore(added, lines, m_reading.intake());
    if (m_wishes.newOnly)
        leaveOutKnown(added, lines, store);
    noteUndated(added, lines);
    countRecords(watch);
    SessionBook::keepLines(added, lines);
    SessionBook::keepSession(added, {m_checksum, m_report.refusedCount, m_report.knownCount.value_or(0)});
    if (m_wishes.toldOf)
        m_records = ImportedRecords::of(added);
    const auto isBefore = [](const Message& a, const Message& b) { return a.line < b.line; };
    if (!std::is_sorted(m_report.messages.begin(), m_report.messages.end(), isBefore))
        std::stable_sort(m_report.messages.begin(), m_report.messages.end(), isBefore);
}

void FileImport::leaveOutKnown(const NewRecords& added, std::vector<std::size_t>& lines, Store& store) {
    const std::size_t room =
        TableNode::kMaxRows - ModelTables::table(store.model().model().root(), "DataSets").getNodeCount();
    const std::vector<RecordNode*> rows = added.rows();
    NewOnly chosen = NewOnly::of(rows, StoreComparison::ofRecords(store, rows), lines, room);
    added.remove(chosen.leftOut);
    lines = std::move(chosen.lines);
    m_report.messages.insert(m_report.messages.end(), chosen.messages.begin(), chosen.messages.end());
    m_report.knownCount = chosen.known;
    m_report.refusedCount += chosen.withoutRoom;
    m_report.importedCount -= static_cast<int>(chosen.leftOut.size());
    m_failed = m_failed || (chosen.withoutRoom > 0 && m_report.importedCount == 0);
}

std::vector<std::size_t> FileImport::linesOfStored(const ModelWatch& watch, const NewRecords& added) const {
    const std::size_t stored = added.count();
    const std::vector<std::size_t> all = m_reading.linesOfRecords(stored + watch.refusals().size());
    if (all.empty())
        return {};
    std::vector<std::size_t> lines;
    lines.reserve(stored);
    auto refused = watch.refusals().begin();
    for (std::size_t record = 1; record <= all.size(); ++record) {
        if (refused != watch.refusals().end() && refused->record == record)
            ++refused;
        else
            lines.push_back(all[record - 1]);
    }
    return lines.size() == stored ? lines : std::vector<std::size_t>();
}

void FileImport::noteUndated(const NewRecords& added, const std::vector<std::size_t>& lines) {
    const std::vector<std::size_t> undated = added.undated();
    m_report.undatedCount = undated.size();
    if (m_reading.mayBeUndated())
        return;
    for (const std::size_t row : undated)
        m_report.messages.push_back(
            Message::of(Problem::noDate, {}, lines.empty() ? std::nullopt : std::optional(lines[row - 1])));
}

void FileImport::countRecords(const ModelWatch& watch) {
    if (m_reading.traits().recordPerLine)
        return;
    RecordCounts counts;
    counts.imported = static_cast<std::size_t>(m_report.importedCount);
    counts.refused = m_report.refusedCount;
    counts.known = m_report.knownCount;
    counts.found = counts.imported + counts.refused + counts.known.value_or(0);
    if (!watch.refusals().empty()) {
        LibraryRun run; // those behind the one that stopped the import are seen by a simulated one only
        counts.found = m_reading.refusedBefore() + static_cast<std::size_t>(m_reading.simulate(run).importedCount);
    }
    m_report.records = counts;
}

void FileImport::fail(Message message) {
    m_report.messages.push_back(std::move(message));
    m_failed = true;
}
