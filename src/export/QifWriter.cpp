// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/QifWriter.h"

#include <algorithm>
#include <array>

#include "export/AmountDigits.h"
#include "export/DayText.h"
#include "export/FlatText.h"

namespace {

// What an import of ours reads back: years that accounts have seen, lines and decimals of a limited length.
constexpr unsigned kFirstYear = 1900;
constexpr unsigned kLastYear = 2199;
constexpr std::size_t kLongestText = 4093;
constexpr int kMostDecimals = 9;
/// So many decimals could as well be the digits of a thousand.
constexpr std::size_t kOfAThousand = 3;

constexpr FlatText::Rules kLine = {"\r\n", "  ", false};

constexpr std::string_view kBankSection = "!Type:Bank";

/// The section that records were in whose category an import has set to the kind of the account.
struct Section {
    std::string_view category; ///< host bytes
    std::string_view header;
};
constexpr std::array<Section, 5> kSections = {{{"Bankkonten", kBankSection},
                                               {"Bargeldkonten", "!Type:Cash"},
                                               {"Kreditkartenkonten", "!Type:CCard"},
                                               {"Verm\xF6genskonten", "!Type:Oth A"},
                                               {"Verbindlichkeitskonten", "!Type:Oth L"}}};

const Section* sectionOf(std::string_view category) {
    const auto* found = std::find_if(kSections.begin(), kSections.end(),
                                     [category](const Section& section) { return category == section.category; });
    return found != kSections.end() ? found : nullptr;
}

std::string categoryOf(const ExportRecord& record, bool inSection) {
    std::string text(inSection ? std::string_view() : record.category);
    if (!text.empty() && !record.subcategory.empty())
        text += ':';
    return text += record.subcategory;
}

bool hasMore(const ExportRecord& record) {
    return record.booking && (!record.booking->note.empty() || !record.booking->valueDay.isZero() ||
                              record.booking->isTaxRelevant.value_or(false));
}

} // namespace

void QifWriter::begin(std::string& out) {
    m_section = kBankSection;
    (out += m_section) += '\n';
}

void QifWriter::add(const ExportRecord& record, std::string& out) {
    if (record.day.isZero()) {
        lose(Loss::undated, record);
        return;
    }
    if (record.day.year() < kFirstYear || record.day.year() > kLastYear) {
        lose(Loss::dayOutside, record);
        return;
    }
    const Section* section = sectionOf(record.category);
    const std::string_view header = section != nullptr ? section->header : kBankSection;
    if (header != m_section) {
        m_section = header;
        (out += m_section) += '\n';
    }
    out += 'D';
    DayText::appendGerman(out, record.day);
    out += '\n';
    appendAmount(out, record);
    m_textChanged = false;
    m_textCut = false;
    appendField(out, 'P', record.payee);
    appendField(out, 'M', record.purpose);
    appendField(out, 'L', categoryOf(record, section != nullptr));
    appendField(out, 'N', record.postingText);
    out += "^\n";
    if (m_textChanged)
        lose(Loss::textChanged, record);
    if (m_textCut)
        lose(Loss::textCut, record);
    if (hasMore(record))
        lose(Loss::fieldDropped, record);
}

void QifWriter::end(std::string& /*out*/) {}

void QifWriter::appendAmount(std::string& out, const ExportRecord& record) {
    if (!record.amount)
        lose(Loss::noAmount, record);
    out += 'T';
    const std::size_t first = out.size();
    if (!AmountDigits::appendRounded(out, record.amount.value_or(0.0) + 0.0, '.', 2, kMostDecimals))
        lose(Loss::amountRounded, record);
    if (out.size() - out.find('.', first) == kOfAThousand + 1)
        out += '0';
    out += '\n';
}

void QifWriter::appendField(std::string& out, char letter, std::string_view text) {
    std::string line;
    m_textCut = m_textCut || text.size() > kLongestText;
    m_textChanged = FlatText::append(line, text.substr(0, kLongestText), kLine) || m_textChanged;
    if (!line.empty())
        ((out += letter) += line) += '\n';
}
