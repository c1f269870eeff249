// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "csv/ImportModuleCSV.h"
#include "dmwrite/SmartDate.h"
#include "export/WrittenText.h"
#include "intake/Intake.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/RecordBook.h"
#include "support/require.h"

// Records, each of a day, an amount and texts that the input makes up, are
// exported in every format; the delimited list is imported again.
namespace {

constexpr unsigned kMostRecords = 12;

DMDate readDay(FuzzInput& input) {
    const unsigned day = 1 + input.choice(28);
    const unsigned month = 1 + input.choice(12);
    const unsigned high = input.byte();
    return DMDate(day, month, 1 + (high << 8U | input.byte()) % 9999);
}

/// Cents, or any number; the model refuses what is none and what is too large.
double readAmount(FuzzInput& input, bool any) {
    if (any) {
        std::uint64_t bits = 0;
        const std::string_view bytes = input.bytes(sizeof bits);
        std::memcpy(&bits, bytes.data(), bytes.size());
        return std::bit_cast<double>(bits);
    }
    const int high = static_cast<int>(input.byte()) - 128;
    return (high * 256 + static_cast<int>(input.byte())) / 100.0;
}

std::string readText(FuzzInput& input) {
    const unsigned length = input.byte();
    const std::string_view piece = input.bytes(length % 64);
    std::string text;
    for (unsigned times = length < 250 ? 1 : 200; times > 0; --times) // now and then longer than a line can be
        text += piece;
    return text;
}

/// The first byte says what the record has: day, amount, any number as such, texts.
BookRow readRecord(FuzzInput& input) {
    const unsigned has = input.byte();
    BookRow record;
    if ((has & 1U) != 0)
        record.day = readDay(input);
    record.hasAmount = (has & 2U) != 0;
    if (record.hasAmount)
        record.amount = readAmount(input, (has & 4U) != 0);
    for (std::size_t i = 0; i < record.texts.size(); ++i) {
        if ((has >> 3U >> i & 1U) != 0)
            record.texts[i] = readText(input);
    }
    return record;
}

struct CsvModule : ImportModuleCSV {
    using ImportModuleCSV::m_delimiter;
};

/// As a program imports what the intake prepared.
void import(const PreparedFile& prepared, DataManager& model) {
    static const std::map<std::string_view, Import::E_ColumnIndex> columns = {
        {"Datum", Import::eColDatum},
        {"Betrag", Import::eColBetrag},
        {"Empfaenger", Import::eColEmpfaenger},
        {"Verwendungszweck", Import::eColVerwendungszweck},
        {"Buchungstext", Import::eColBuchungstext},
        {"Kategorie", Import::eColKategorie},
        {"Unterkategorie", Import::eColUnterkategorie},
    };
    CsvModule module;
    module.m_delimiter = prepared.delimiter;
    ColumnAssignment assignment{};
    for (const auto& [column, field] : prepared.columns)
        assignment.m_pairs[assignment.m_count++] = {column, columns.at(field)};
    module.assignColumns(assignment);
    ImportInputParams params;
    params.m_targetNode = model.root();
    params.m_firstLineIsHeader = prepared.header ? 1 : 0;
    params.setInputFileBuffer(prepared.text.data(), prepared.text.size());
    SmartDate::sm_order = 0;
    SmartDate::setupCenturyStart(model.root());
    require(module.importFile(params) == 1, "the library reads what was prepared");

    for (const PreparedFile::FullText& full : prepared.fullTexts) {
        const auto row = std::count(prepared.lines.begin(), prepared.lines.begin() + full.line, LineUse::record);
        RecordNode* record = RecordBook::table(model, "DataSets").row(static_cast<unsigned>(row));
        require(record != nullptr, "a text belongs to a record");
        RecordBook::set(*record, full.field, RecordBook::text(full.text));
    }
}

void requireSame(const BookRow& a, const BookRow& b) {
    require(a.day.isZero()
                ? b.day.isZero()
                : a.day.day() == b.day.day() && a.day.month() == b.day.month() && a.day.year() == b.day.year(),
            "every record comes back with its day");
    require(a.hasAmount == b.hasAmount && a.amount == b.amount, "and its amount, to the last bit");
    require(a.texts == b.texts, "and its texts");
}

void requireImportedAgain(const std::string& exported, DataManager& model) {
    const IntakeResult list = Intake::read(exported, Import::eFormatCSV, {});
    require(list.ownExport && !list.undecided, "our own list is known by its header");
    require(list.prepared.refused == 0 && list.prepared.messages.empty(), "nothing of it is refused");
    DataManager again;
    import(list.prepared, again);
    TableNode& before = RecordBook::table(model, "DataSets");
    TableNode& after = RecordBook::table(again, "DataSets");
    require(before.getNodeCount() == after.getNodeCount(), "every record comes back");
    for (unsigned row = 1; row <= before.getNodeCount(); ++row)
        requireSame(RecordBook::read(*before.row(row)), RecordBook::read(*after.row(row)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    DataManager model;
    const TableNode& records = RecordBook::table(model, "DataSets");
    while (!input.empty() && records.getNodeCount() < kMostRecords)
        RecordBook::add(model, readRecord(input));

    requireImportedAgain(WrittenText("csv", model).text, model);
    require(nlohmann::json::accept(WrittenText("json", model).text), "the document is JSON");
    for (const char* format : {"hledger", "qif"}) {
        const WrittenText written(format, model);
        require(written.lost(Loss::undated) <= records.getNodeCount(), "a record is lost once at most");
    }
    return 0;
}
