// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/CardStatement.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "intake/TextTools.h"

namespace {

// All folded; found anywhere in a field.
constexpr std::array<std::string_view, 10> kCard = {
    "kreditkarte", "credit card", "creditcard",    "carte de credit", "carta di credito",
    "kartenumsa",  "card holder", "karteninhaber", "card member",     "erscheint auf ihrer abrechnung"};
/// Of a column: what it holds shows whether the booking was paid by card.
constexpr std::array<std::string_view, 6> kCardColumn = {"karte", "card", "carte", "carta", "merchant", "haendler"};
constexpr std::array<std::string_view, 5> kPurchase = {"purchase", "einkauf", "kauf", "charge", "achat"};
/// A payment to the card, or money back.
constexpr std::array<std::string_view, 12> kPayment = {"zahlung",    "payment",  "ueberweisung", "lastschrift",
                                                       "gutschrift", "refund",   "erstattung",   "einzahlung",
                                                       "credit",     "paiement", "pagamento",    "rueckzahlung"};
/// The card's owner paid and is told so: not what one reads beside an expense.
/// Shops, too, thank ("REWE SAGT DANKE"), so that word alone means nothing.
constexpr std::array<std::string_view, 10> kThanks = {
    "zahlung erhalten",     "payment thank you", "thank you for your payment", "payment received", "your payment",
    "payments and credits", "autopay",           "dank fuer ihre zahlung",     "ihre zahlung",     "paiement recu"};

bool mentions(std::string_view folded, std::span<const std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return folded.find(word) != std::string_view::npos; });
}

/// How the bookings of one sign speak.
struct Voices {
    int count = 0;
    int purchases = 0; ///< and do not mention a payment
    int payments = 0;
    int thanks = 0;
    int cards = 0; ///< filled in a column of cards or merchants
};

class Judge {
public:
    Judge(const RecordTable& table, const TablePlan& plan) : m_table(table), m_plan(plan) {
        const std::size_t top = plan.region.header ? *plan.region.header + 1 : plan.region.begin;
        for (std::size_t i = 0; i < top; ++i)
            m_namesCard = m_namesCard || mentions(textOf(i), kCard);
        if (!plan.region.header)
            return;
        const int columns = table.record(*plan.region.header).cellCount;
        for (int c = 0; c < columns; ++c) {
            if (mentions(TextTools::fold(table.cell(*plan.region.header, c)), kCardColumn))
                m_cardColumns.push_back(c);
        }
    }

    CardSigns judge(const std::vector<BookingRow>& rows) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (rows[i].kind == BookingRow::Kind::booking && !rows[i].amount->isZero())
                hear(rows[i].amount->isNegative() ? m_negative : m_positive, m_plan.region.begin + i);
        }
        if (m_positive.count == 0 || m_positive.thanks > 0)
            return m_negative.count == 0 && m_positive.thanks > 0 && isCard() && m_positive.thanks < m_positive.count
                       ? CardSigns::unclear
                       : CardSigns::asWritten;
        return m_negative.count == 0 ? withoutNegatives() : withBoth();
    }

private:
    std::string textOf(std::size_t record) const {
        std::string text;
        for (const std::string_view cell : m_table.cells(record))
            text += TextTools::fold(cell) + "; ";
        return text;
    }

    void hear(Voices& voices, std::size_t record) const {
        const std::string text = textOf(record);
        const bool payment = mentions(text, kPayment);
        const bool thanks = mentions(text, kThanks);
        ++voices.count;
        voices.payments += payment || thanks ? 1 : 0;
        voices.thanks += thanks ? 1 : 0;
        voices.purchases += !payment && mentions(text, kPurchase) ? 1 : 0;
        voices.cards += std::any_of(m_cardColumns.begin(), m_cardColumns.end(),
                                    [&](int column) { return !TextTools::trim(m_table.cell(record, column)).empty(); });
    }

    /// The file is about a card, and so is what has a positive amount.
    bool isCard() const { return m_namesCard || (m_positive.cards > 0 && m_positive.cards == m_positive.count); }

    CardSigns withoutNegatives() const {
        if (m_positive.purchases == m_positive.count)
            return CardSigns::inverted;
        if (!isCard())
            return CardSigns::asWritten;
        if (m_positive.payments == 0)
            return CardSigns::inverted;
        return m_positive.payments == m_positive.count ? CardSigns::asWritten : CardSigns::unclear;
    }

    CardSigns withBoth() const {
        // What is negative must be payments and money back, each of them.
        if (m_negative.payments < m_negative.count || m_negative.purchases > 0)
            return CardSigns::asWritten;
        const bool thanked = m_negative.thanks == m_negative.count && m_positive.count >= m_negative.count;
        const bool inverted = thanked || m_positive.purchases == m_positive.count ||
                              (isCard() && m_positive.count >= 2 * m_negative.count);
        return inverted ? CardSigns::inverted : CardSigns::asWritten;
    }

    const RecordTable& m_table;
    const TablePlan& m_plan;
    std::vector<int> m_cardColumns;
    bool m_namesCard = false;
    Voices m_positive;
    Voices m_negative;
};

} // namespace

namespace CardStatements {

CardSigns signs(const RecordTable& table, const TablePlan& plan, const std::vector<BookingRow>& rows) {
    return Judge(table, plan).judge(rows);
}

} // namespace CardStatements
