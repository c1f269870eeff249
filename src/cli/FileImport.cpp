// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileImport.h"

#include <algorithm>
#include <utility>

#include "cli/ColumnOption.h"
#include "cli/HostText1252.h"
#include "cli/LibraryFailure.h"
#include "cli/RefusalMessages.h"
#include "cli/SafeText.h"
#include "datamodel/DataModel.h"
#include "datamodel/TableSpec.h"

FileImport::FileImport(const FileReading& reading, const ImportWishes& wishes) : m_reading(reading), m_wishes(wishes) {
    m_report.file = reading.argument();
    m_report.format = reading.traits().format;
    m_report.messages = reading.messages();
}

void FileImport::run(StoreAtPath& storeAtPath, const Console& console) {
    if (!mayImport()) {
        askForWords();
        countLines();
        return;
    }
    Store& store = storeAtPath.forWriting();
    importInto(store.model(), console);
    countLines();
    const bool keeps = !m_failed || (m_wishes.keepPartial && m_report.importedCount > 0);
    if (keeps) {
        store.commit();
        m_report.committed = true;
    } else {
        store.rollback();
        m_report.sessionId = 0;
    }
}

bool FileImport::mayImport() {
    if (m_reading.isRefused())
        return false;
    if (m_reading.traits().takesColumns() && m_reading.columns() == nullptr && !m_reading.isVerbatim()) {
        fail(Message::of(Problem::columnsMissing, {}));
        return false;
    }
    return true;
}

/// A file that cannot be opened harms nobody; the library has a text for it.
void FileImport::askForWords() {
    if (!m_reading.isUnreadable() || !m_reading.mayBeAsked())
        return;
    LibraryRun run;
    m_report.errorText = m_reading.simulate(run).errorText;
}

void FileImport::importInto(DataManager& model, const Console& console) {
    const bool takesUndated = m_wishes.allowUndated || !m_reading.traits().recordPerLine;
    model.model().schema().table("DataSets")->row.setTakesZeroDate("Datum", takesUndated);

    Progress progress(console.showsProgress(), SafeText::printable(m_report.file), m_reading.census().readLines());
    const NewRecords added(model);
    const ModelWatch watch(model.model(), progress);
    LibraryRun run;
    const RunOutcome outcome = m_reading.import(run, model.root(), m_wishes.info);
    if (!run.hasModule())
        fail(Message::of(Problem::formatUnsupported, {FormatTable::labelOf(m_reading.traits().format)}));
    else
        judge(outcome, watch, added);
    added.setFileName(HostText1252::transliterated(m_report.file));
}

void FileImport::judge(const RunOutcome& outcome, const ModelWatch& watch, const NewRecords& added) {
    m_report.result = outcome.result;
    m_report.importedCount = outcome.importedCount;
    m_report.errorText = outcome.errorText;
    m_report.sessionId = added.sessionId();
    m_report.refusedCount = watch.refusals().size();
    std::vector<Message> refusals = RefusalMessages::of(watch.refusals(), m_reading);
    m_report.messages.insert(m_report.messages.end(), refusals.begin(), refusals.end());

    // A format that writes after reading stops at the first record that it cannot write.
    const bool stopped = !m_reading.traits().recordPerLine && m_report.refusedCount > 0;
    const bool nothing = m_report.refusedCount > 0 && m_report.importedCount == 0;
    m_failed = m_failed || stopped || nothing;
    if (watch.refusedBookkeeping())
        fail(Message::of(Problem::bookkeepingRefused, {*watch.refusedBookkeeping()}));
    if (outcome.result != 0)
        judgeColumns(added);
    else if (refusals.empty()) // a refused record that ended the import has its message
        fail(LibraryFailure::message(m_reading, outcome));
    else
        m_failed = true;
    noteUndated(watch, added);
    countRecords(watch);
    if (const std::optional<Message> doubt = m_reading.doubtOfDelimiter(); doubt && m_failed)
        m_report.messages.push_back(*doubt);
    std::stable_sort(m_report.messages.begin(), m_report.messages.end(),
                     [](const Message& a, const Message& b) { return a.line < b.line; });
}

/// A column that no line has is a slip of the pen, and would otherwise fill the
/// store with records that lack a field.
void FileImport::judgeColumns(const NewRecords& added) {
    if (m_reading.isVerbatim() || !m_reading.traits().takesColumns() || m_report.importedCount == 0)
        return;
    const ColumnAssignment& columns = *m_reading.columns();
    for (int i = 0; i < columns.m_count; ++i) {
        if (!added.anyHas(ColumnOption::fieldName(columns.m_pairs[i].m_column)))
            fail(m_reading.columnOutside(columns.m_pairs[i]));
    }
}

void FileImport::noteUndated(const ModelWatch& watch, const NewRecords& added) {
    const std::vector<std::size_t> undated = added.undated();
    m_report.undatedCount = undated.size();
    if (!m_reading.traits().recordPerLine)
        return; // budgets and categories never have a date
    auto refused = watch.refusals().begin();
    std::size_t record = 0; // of the import
    std::size_t row = 0;    // of those that were stored
    for (const std::size_t wanted : undated) {
        while (row < wanted) {
            ++record;
            if (refused != watch.refusals().end() && refused->record == record)
                ++refused;
            else
                ++row;
        }
        m_report.messages.push_back(Message::of(Problem::noDate, {}, RefusalMessages::lineOf(record, m_reading)));
    }
}

void FileImport::countRecords(const ModelWatch& watch) {
    if (m_reading.traits().recordPerLine)
        return;
    RecordCounts counts;
    counts.imported = static_cast<std::size_t>(m_report.importedCount);
    counts.refused = watch.refusals().size();
    counts.found = counts.imported + counts.refused;
    if (counts.refused > 0) {
        LibraryRun run; // those behind the one that stopped the import are seen by a simulated one only
        counts.found = static_cast<std::size_t>(m_reading.simulate(run).importedCount);
    }
    m_report.records = counts;
}

void FileImport::countLines() {
    const FileCensus& census = m_reading.census();
    LineCounts& lines = m_report.lines;
    lines.read = census.lines();
    lines.blank = census.blankLines();
    const std::size_t handled = static_cast<std::size_t>(m_report.importedCount) + m_report.refusedCount;
    const bool wasRead = m_report.result != 0 || handled > 0;
    if (m_reading.traits().recordPerLine) {
        lines.records = handled;
        lines.header = wasRead && m_reading.hasHeader() ? std::min<std::size_t>(census.readLines(), 1) : 0;
    } else if (wasRead) {
        lines.records = census.readLines();
    }
    lines.ignored = lines.read - lines.blank - lines.header - lines.records;
}

void FileImport::fail(Message message) {
    m_report.messages.push_back(std::move(message));
    m_failed = true;
}
