// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/FileReading.h"

#include <algorithm>
#include <array>
#include <map>

#include <gtest/gtest.h>

#include "csv/ImportModuleCSV.h"
#include "csv/ImportModuleStarMoney.h"
#include "dmwrite/SmartDate.h"
#include "framework/ImportInputParams.h"
#include "intake/HostTextReader.h"
#include "intake/TextTools.h"
#include "qif/ImportModuleQIF.h"

namespace {

/// A generic list whose delimiter a test may set.
struct CsvModule : ImportModuleCSV {
    using ImportModuleCSV::m_delimiter;
};

const std::map<std::string, Import::E_ColumnIndex>& columnOfField() {
    static const std::map<std::string, Import::E_ColumnIndex> columns = {
        {"Datum", Import::eColDatum},
        {"Betrag", Import::eColBetrag},
        {"Empfaenger", Import::eColEmpfaenger},
        {"Verwendungszweck", Import::eColVerwendungszweck},
        {"Buchungstext", Import::eColBuchungstext},
        {"Kategorie", Import::eColKategorie},
        {"Unterkategorie", Import::eColUnterkategorie},
    };
    return columns;
}

template <typename Module>
void run(Module& module, const IntakeResult& intake, const FinanceModel& model) {
    ImportInputParams params;
    params.m_targetNode = model.root();
    params.m_firstLineIsHeader = intake.prepared.header ? 1 : 0;
    params.setInputFileBuffer(intake.prepared.text.data(), intake.prepared.text.size());
    SmartDate::sm_order = 0;
    SmartDate::setupCenturyStart(model.root());
    module.importFile(params);
}

/// Lines of a text, counted without the intake's help. Where there are line
/// feeds, a carriage return by itself ends no line.
int linesOf(std::string_view text) {
    const char end = text.find('\n') == std::string_view::npos ? '\r' : '\n';
    const auto ends = std::count(text.begin(), text.end(), end);
    return static_cast<int>(ends) + (text.empty() || text.back() == end ? 0 : 1);
}

} // namespace

FileReading::FileReading(std::string_view bytes, Import::E_SupportedImportFormats format,
                         const InspectionOptions& options)
    : m_intake(Intake::read(bytes, format, options)) {
    if (!m_intake.undecided)
        import();
    expectLinesAccounted(bytes);
    if (!m_intake.undecided)
        expectRecordsAccounted();
}

void FileReading::import() {
    const FinanceModel model;
    if (m_intake.format == Import::eFormatQIF) {
        ImportModuleQIF module;
        run(module, m_intake, model);
    } else if (m_intake.format == Import::eFormatStarMoney) {
        ImportModuleStarMoney module;
        run(module, m_intake, model);
    } else {
        importDelimited(model);
    }
    m_records = importedRecords(model);
}

void FileReading::importDelimited(const FinanceModel& model) {
    CsvModule module;
    module.m_delimiter = m_intake.prepared.delimiter;
    ColumnAssignment assignment{};
    for (const auto& [column, field] : m_intake.prepared.columns)
        assignment.m_pairs[assignment.m_count++] = {column, columnOfField().at(field)};
    module.assignColumns(assignment);
    run(module, m_intake, model);
}

void FileReading::expectLinesAccounted(std::string_view bytes) const {
    const std::string text = HostTextReader::read(bytes).text;
    EXPECT_EQ(static_cast<int>(m_intake.prepared.lines.size()), linesOf(text)) << "every line has one use";
    if (m_intake.undecided)
        return;
    const int added = m_intake.format == Import::eFormatQIF ? 1 : 0; // the last "^"
    const auto ends = std::count(preparedText().begin(), preparedText().end(), '\n');
    EXPECT_GE(ends, linesOf(text) - 1) << "lines keep their numbers";
    EXPECT_LE(ends, linesOf(text) + added) << "lines keep their numbers";
    EXPECT_EQ(preparedText().find('\0'), std::string::npos);
}

void FileReading::expectRecordsAccounted() const {
    const auto& prepared = m_intake.prepared;
    const auto refusals = std::count_if(prepared.messages.begin(), prepared.messages.end(),
                                        [](const IntakeMessage& message) { return message.refusal; });
    EXPECT_EQ(refusals, refused()) << "every refused record has its message";
    const int imported = static_cast<int>(m_records.size());
    const auto recordLines = std::count(prepared.lines.begin(), prepared.lines.end(), LineUse::record);
    EXPECT_EQ(imported + refused(), m_intake.recordsFound.value_or(static_cast<int>(recordLines)))
        << "every record is imported or refused";
    const auto inOrder = std::is_sorted(prepared.messages.begin(), prepared.messages.end(),
                                        [](const auto& a, const auto& b) { return a.line < b.line; });
    EXPECT_TRUE(inOrder) << "messages come in the order of their lines";
    for (const IntakeMessage& message : prepared.messages) {
        EXPECT_FALSE(message.code.empty());
        EXPECT_FALSE(message.text.empty());
        EXPECT_LE(message.line, static_cast<int>(prepared.lines.size())) << message.text;
    }
    expectIgnoredLinesExplained();
}

/// A line that is ignored belongs to the record above it, or a message says why.
void FileReading::expectIgnoredLinesExplained() const {
    if (m_intake.format == Import::eFormatQIF)
        return; // whole sections are known to hold no bookings
    const auto& prepared = m_intake.prepared;
    for (std::size_t i = 0; i < prepared.lines.size(); ++i) {
        if (prepared.lines[i] != LineUse::ignored)
            continue;
        const bool goesOn =
            i > 0 && (prepared.lines[i - 1] == LineUse::record || prepared.lines[i - 1] == LineUse::ignored);
        const bool explained = std::any_of(prepared.messages.begin(), prepared.messages.end(),
                                           [&](const auto& m) { return m.line == static_cast<int>(i) + 1; });
        EXPECT_TRUE(goesOn || explained) << "line " << i + 1 << " is ignored without a word";
    }
}

std::vector<std::string> FileReading::bookings() const {
    std::vector<std::string> texts;
    for (const ImportedRecord& record : m_records)
        texts.push_back(record.date + ' ' + record.amount + ' ' + TextTools::toUtf8(record.payee) + " | " +
                        TextTools::toUtf8(record.purpose));
    return texts;
}

std::vector<std::string> FileReading::datesAndAmounts() const {
    std::vector<std::string> texts;
    for (const ImportedRecord& record : m_records)
        texts.push_back(record.date + ' ' + record.amount);
    return texts;
}

std::vector<std::string> FileReading::messages() const {
    std::vector<std::string> codes;
    for (const IntakeMessage& message : m_intake.prepared.messages)
        codes.push_back(message.code + (message.line > 0 ? "@" + std::to_string(message.line) : std::string()));
    return codes;
}

std::string FileReading::lines() const {
    constexpr std::string_view kLetters = "RHPFBI"; // in the order of LineUse
    std::string text;
    for (const LineUse use : m_intake.prepared.lines)
        text += kLetters[static_cast<std::size_t>(use)];
    return text;
}
