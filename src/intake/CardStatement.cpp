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

/// How one booking speaks.
struct Voice {
    bool purchase; ///< and does not mention a payment
    bool payment;
    bool thanks;
    bool card; ///< something stands in a column of cards or merchants
};

/// How the positive ones speak together.
struct Positives {
    int count = 0;
    int purchases = 0;
    int payments = 0;
    int thanks = 0;
    int cards = 0;
};

class Judge {
public:
    Judge(const RecordTable& table, const TablePlan& plan, const std::vector<BookingRow>& rows)
        : m_table(table), m_plan(plan), m_rows(rows) {
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

    CardSigns judge() {
        const auto negatives = recordsOf([](const Money& amount) { return amount.isNegative(); });
        const auto positives = recordsOf([](const Money& amount) { return !amount.isNegative(); });
        // More is bought with a card than paid to it.
        if (positives.empty() || negatives.size() > positives.size())
            return CardSigns::asWritten;
        // What is negative must be payments and money back, each of them.
        bool thanked = !negatives.empty();
        for (const std::size_t record : negatives) {
            const Voice voice = hear(record);
            if (!voice.payment || voice.purchase)
                return CardSigns::asWritten;
            thanked = thanked && voice.thanks;
        }
        if (!hearPositives(positives, negatives.empty()))
            return CardSigns::asWritten;
        if (negatives.empty())
            return withoutNegatives();
        if (m_positives.thanks > 0)
            return CardSigns::asWritten;
        const bool inverted = thanked || m_positives.purchases == m_positives.count ||
                              (isCard() && positives.size() >= 2 * negatives.size());
        return inverted ? CardSigns::inverted : CardSigns::asWritten;
    }

private:
    template <typename Test>
    std::vector<std::size_t> recordsOf(Test test) const {
        std::vector<std::size_t> records;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const BookingRow& row = m_rows[i];
            if (row.kind == BookingRow::Kind::booking && !row.amount->isZero() && test(*row.amount))
                records.push_back(m_plan.region.begin + i);
        }
        return records;
    }

    std::string textOf(std::size_t record) const {
        std::string text;
        for (const std::string_view cell : m_table.cells(record))
            text += TextTools::fold(cell) + "; ";
        return text;
    }

    Voice hear(std::size_t record) const {
        const std::string text = textOf(record);
        Voice voice{};
        voice.thanks = mentions(text, kThanks);
        const bool payment = mentions(text, kPayment);
        voice.payment = payment || voice.thanks;
        voice.purchase = !payment && mentions(text, kPurchase);
        voice.card = std::any_of(m_cardColumns.begin(), m_cardColumns.end(),
                                 [&](int column) { return !TextTools::trim(m_table.cell(record, column)).empty(); });
        return voice;
    }

    /// False as soon as nothing can make it a card statement any more.
    bool hearPositives(const std::vector<std::size_t>& records, bool alone) {
        // NOLINTNEXTLINE(readability-use-anyofallof): the body counts, which a predicate should not
        for (const std::size_t record : records) {
            const Voice voice = hear(record);
            ++m_positives.count;
            m_positives.purchases += voice.purchase ? 1 : 0;
            m_positives.payments += voice.payment ? 1 : 0;
            m_positives.thanks += voice.thanks ? 1 : 0;
            m_positives.cards += voice.card ? 1 : 0;
            const bool couldBeCard = m_namesCard || m_positives.cards == m_positives.count;
            if (alone && !couldBeCard && m_positives.purchases < m_positives.count)
                return false;
        }
        return true;
    }

    /// The file is about a card, and so is what has a positive amount.
    bool isCard() const { return m_namesCard || m_positives.cards == m_positives.count; }

    CardSigns withoutNegatives() const {
        if (m_positives.purchases == m_positives.count)
            return CardSigns::inverted;
        if (m_positives.payments == 0)
            return CardSigns::inverted;
        return m_positives.payments == m_positives.count ? CardSigns::asWritten : CardSigns::unclear;
    }

    const RecordTable& m_table;
    const TablePlan& m_plan;
    const std::vector<BookingRow>& m_rows;
    std::vector<int> m_cardColumns;
    bool m_namesCard = false;
    Positives m_positives;
};

} // namespace

namespace CardStatements {

CardSigns signs(const RecordTable& table, const TablePlan& plan, const std::vector<BookingRow>& rows) {
    return Judge(table, plan, rows).judge();
}

} // namespace CardStatements
