// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "intake/Money.h"
#include "intake/TextTools.h"

namespace {

constexpr int kMaxScale = 9;
constexpr int kMaxDigits = 17;

// Currencies that stand beside amounts; a word that is none of these makes the
// cell a text.
constexpr std::array<std::string_view, 54> kCurrencies = {
    "EUR", "Euro", "EURO", "\x80", "USD", "US$", "CA$", "A$",  "$",   "GBP", "\xA3", "CHF", "SFr.", "Fr.",
    "JPY", "\xA5", "DEM",  "DM",   "ATS", "SEK", "NOK", "DKK", "PLN", "CZK", "HUF",  "TRY", "AUD",  "CAD",
    "NZD", "INR",  "BRL",  "ZAR",  "HKD", "SGD", "CNY", "kr",  "Kr",  "RON", "BGN",  "ISK", "RSD",  "MXN",
    "ILS", "THB",  "KRW",  "AED",  "TND", "UAH", "zl",  "Kc",  "Ft",  "lei", "R$",   "kr.",
};

/// The characters with which currencies begin or end; most texts have others there.
class CurrencyEdges {
public:
    constexpr CurrencyEdges() {
        for (const std::string_view currency : kCurrencies) {
            m_begins[static_cast<unsigned char>(currency.front())] = true;
            m_ends[static_cast<unsigned char>(currency.back())] = true;
        }
    }

    constexpr bool fit(std::string_view text) const {
        return m_begins[static_cast<unsigned char>(text.front())] || m_ends[static_cast<unsigned char>(text.back())];
    }

private:
    std::array<bool, 256> m_begins{};
    std::array<bool, 256> m_ends{};
};
constexpr CurrencyEdges kCurrencyEdges;

struct SignWord {
    std::string_view word;
    AmountCell::Sign sign;
};
constexpr std::array<SignWord, 8> kSignWords = {{
    {"CR", AmountCell::Sign::plus},
    {"DR", AmountCell::Sign::minus},
    {"Cr", AmountCell::Sign::plus},
    {"Dr", AmountCell::Sign::minus},
    {"S", AmountCell::Sign::minus},
    {"H", AmountCell::Sign::plus},
    {"D", AmountCell::Sign::minus},
    {"C", AmountCell::Sign::plus},
}};

/// Takes sign and currency off both ends of a cell, as often as there are any.
class Peeler {
public:
    Peeler(std::string_view text, AmountCell& out) : m_text(TextTools::trim(text)), m_out(out) {}

    std::optional<std::string_view> number() {
        while (!m_text.empty() && !isBare() && (peelBrackets() || peelSign() || peelCurrency() || peelSignWord()))
            m_text = TextTools::trim(m_text);
        return m_consistent ? std::optional(m_text) : std::nullopt;
    }

private:
    /// Nothing to take off: what most cells are after at most one step.
    bool isBare() const { return TextTools::isDigit(m_text.front()) && TextTools::isDigit(m_text.back()); }

    void setSign(AmountCell::Sign sign) {
        m_consistent = m_consistent && m_out.sign == AmountCell::Sign::none;
        m_out.sign = sign;
    }

    bool peelBrackets() {
        if (m_text.size() < 2 || m_text.front() != '(' || m_text.back() != ')')
            return false;
        m_text = m_text.substr(1, m_text.size() - 2);
        setSign(AmountCell::Sign::minus);
        return true;
    }

    static AmountCell::Sign signOf(char c) {
        return c == '-' || c == '\x96' ? AmountCell::Sign::minus // a dash is a minus that was made pretty
               : c == '+'              ? AmountCell::Sign::plus
                                       : AmountCell::Sign::none;
    }

    bool peelSign() {
        if (const auto sign = signOf(m_text.front()); sign != AmountCell::Sign::none) {
            setSign(sign);
            m_text.remove_prefix(1);
            return true;
        }
        if (const auto sign = signOf(m_text.back()); sign != AmountCell::Sign::none) {
            setSign(sign);
            m_text.remove_suffix(1);
            return true;
        }
        return false;
    }

    bool peelCurrency() {
        if (!kCurrencyEdges.fit(m_text))
            return false;
        // NOLINTNEXTLINE(readability-use-anyofallof): the body changes what is read, which a predicate should not
        for (const std::string_view currency : kCurrencies) {
            const bool ahead = m_text.front() == currency.front() && m_text.starts_with(currency);
            if (ahead && !continuesWord(currency.size())) {
                m_text.remove_prefix(currency.size());
                m_out.currency = true;
                return true;
            }
            if (m_text.back() == currency.back() && m_text.ends_with(currency)) {
                m_text.remove_suffix(currency.size());
                m_out.currency = true;
                return true;
            }
        }
        return false;
    }

    bool continuesWord(std::size_t at) const {
        return at < m_text.size() && TextTools::isAsciiLetter(m_text[at]) && TextTools::isAsciiLetter(m_text[at - 1]);
    }

    bool peelSignWord() {
        // NOLINTNEXTLINE(readability-use-anyofallof): as above
        for (const SignWord& row : kSignWords) {
            if (m_text.size() > row.word.size() && m_text.ends_with(row.word) &&
                !TextTools::isAsciiLetter(m_text[m_text.size() - row.word.size() - 1])) {
                m_text.remove_suffix(row.word.size());
                setSign(row.sign);
                return true;
            }
        }
        return false;
    }

    std::string_view m_text;
    AmountCell& m_out;
    bool m_consistent = true;
};

bool isGroupMark(char c, char decimalMark) {
    return c == (decimalMark == ',' ? '.' : ',') || c == '\'' || c == '\x92' || c == '`' || c == '\xB4' || c == ' ' ||
           c == TextTools::kNoBreakSpace;
}

/// Digits with one decimal mark at most, grouped in threes or not at all.
// NOLINTNEXTLINE(readability-function-cognitive-complexity): one pass over the characters, a rule for each kind
bool readNumber(std::string_view text, char decimalMark, AmountCell& out) {
    int digits = 0;
    int sinceGroup = 0;
    char groupMark = '\0';
    bool behindMark = false;
    for (const char c : text) {
        if (TextTools::isDigit(c)) {
            if (++digits > kMaxDigits)
                return false;
            out.magnitude.mantissa = out.magnitude.mantissa * 10 + (c - '0');
            ++sinceGroup;
            if (behindMark && ++out.magnitude.scale > kMaxScale)
                return false;
        } else if (c == decimalMark && !behindMark) {
            if (groupMark != '\0' && sinceGroup != 3)
                return false;
            behindMark = true;
        } else if (!behindMark && isGroupMark(c, decimalMark)) {
            const bool first = groupMark == '\0';
            // Nobody groups "0.375".
            const bool startsGroups = sinceGroup > 0 && sinceGroup <= 3 && text.front() != '0';
            if (first ? !startsGroups : (sinceGroup != 3 || c != groupMark))
                return false;
            groupMark = c;
            sinceGroup = 0;
        } else {
            return false;
        }
    }
    if (!behindMark && groupMark != '\0' && sinceGroup != 3)
        return false;
    out.marked = behindMark;
    const int ahead = digits - out.magnitude.scale;
    out.thousand =
        behindMark && out.magnitude.scale == 3 && groupMark == '\0' && ahead > 0 && ahead <= 3 && text.front() != '0';
    return digits > 0;
}

} // namespace

namespace AmountCells {

std::optional<AmountCell> read(std::string_view cell, char decimalMark) {
    if (std::none_of(cell.begin(), cell.end(), TextTools::isDigit))
        return std::nullopt;
    AmountCell amount;
    const auto number = Peeler(cell, amount).number();
    if (!number || number->empty() || !readNumber(*number, decimalMark, amount))
        return std::nullopt;
    return amount;
}

} // namespace AmountCells
