// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/SignDecision.h"

#include <algorithm>
#include <string>

#include "intake/BalanceCheck.h"
#include "intake/CardStatement.h"
#include "intake/MessageTexts.h"
#include "intake/SignWords.h"
#include "intake/TextTools.h"

namespace {

constexpr double kGuessedSigns = 0.25;
/// Several bookings and none of them an expense: perhaps the sign stands where nobody looks.
constexpr double kNoExpense = 0.25;
constexpr int kBookingsThatTell = 3;

bool isBooking(const BookingRow& row) { return row.kind == BookingRow::Kind::booking; }

void turnSigns(std::vector<BookingRow>& rows) {
    for (BookingRow& row : rows) {
        if (row.amount)
            row.amount = row.amount->negated();
    }
}

/// The balance before the oldest booking is not in the file, so its sign is not either.
void takeSignsFromBalance(std::vector<BookingRow>& rows, bool newestFirst) {
    BookingRow* neighbour = nullptr; // the booking before in the file
    BookingRow* oldest = nullptr;
    for (BookingRow& row : rows) {
        if (!isBooking(row) || !row.balance)
            continue;
        if (neighbour != nullptr) {
            BookingRow& newer = newestFirst ? *neighbour : row;
            const BookingRow& older = newestFirst ? row : *neighbour;
            const Money change = *newer.balance - *older.balance;
            newer.amount = change.isNegative() ? newer.amount->magnitude().negated() : newer.amount->magnitude();
        }
        if (newestFirst || oldest == nullptr)
            oldest = &row;
        neighbour = &row;
    }
    if (oldest != nullptr && !oldest->amount->isZero())
        oldest->kind = BookingRow::Kind::noSign;
}

class Decider {
public:
    Decider(const RecordTable& table, const ColumnChoice& choice, TablePlan& plan, std::vector<BookingRow>& rows)
        : m_table(table), m_choice(choice), m_plan(plan), m_rows(rows) {}

    SignDecision run(bool columnsByUser) {
        tellColumns();
        BalanceCheck check = BalanceChecks::check(m_table, m_plan, m_rows);
        if (check.proof == BalanceProof::none && !columnsByUser)
            check = followBalance(check);
        applyBalance(check);
        if (check.proof == BalanceProof::none && m_plan.sign == SignRule::asWritten && !columnsByUser) {
            if (check.signsContradict)
                m_decision.undecided = Messages::make(MessageId::signAmbiguous, headerLine());
            else
                decideByWords();
        }
        doubtMissingSigns(check);
        m_plan.balance = check.proof;
        m_plan.newestFirst = check.newestFirst;
        m_plan.balanceBreaks = check.breaks;
        if (check.proof == BalanceProof::certified) {
            m_decision.certified = true;
            tell(0, m_plan.roles.balance,
                 check.runningColumn ? "Der laufende Saldo bestätigt alle " + std::to_string(check.steps) + " Schritte."
                                     : std::string("Anfangssaldo plus Umsätze ergibt den Endsaldo."));
        }
        return std::move(m_decision);
    }

private:
    int headerLine() const { return m_plan.region.header ? m_table.record(*m_plan.region.header).firstLine + 1 : 0; }
    void tell(int line, int column, std::string text) { m_decision.reasons.push_back({line, column, std::move(text)}); }

    void tellColumns() {
        if (m_plan.sign == SignRule::twoColumns)
            tell(headerLine(), m_plan.roles.debit >= 0 ? m_plan.roles.debit : m_plan.roles.credit,
                 "Soll und Haben stehen in getrennten Spalten.");
        else if (m_plan.sign == SignRule::signColumn)
            tell(headerLine(), m_plan.roles.sign, "Das Vorzeichen steht als Kennzeichen in einer eigenen Spalte.");
    }

    void doubtMissingSigns(const BalanceCheck& check) {
        if (check.proof == BalanceProof::certified || m_plan.sign != SignRule::asWritten)
            return;
        int count = 0;
        for (const BookingRow& row : m_rows) {
            if (!isBooking(row))
                continue;
            if (row.amount->isNegative())
                return;
            ++count;
        }
        m_decision.doubt += count >= kBookingsThatTell ? kNoExpense : 0.0;
    }

    /// Where gross, net and fees stand side by side, the running balance tells
    /// which of them moves the account.
    BalanceCheck followBalance(const BalanceCheck& before) {
        if (m_plan.roles.balance < 0 || m_plan.sign != SignRule::asWritten)
            return before;
        for (const int column : m_choice.otherAmounts) {
            TablePlan other = m_plan;
            other.roles.amount = column;
            std::vector<BookingRow> rows = BookingRows::read(m_table, other);
            BalanceCheck check = BalanceChecks::check(m_table, other, rows);
            if (check.proof != BalanceProof::certified || check.signsFromBalance || check.steps < 1)
                continue;
            m_plan.roles.amount = column;
            m_rows = std::move(rows);
            tell(headerLine(), column, "Diese Betragsspalte bewegt den laufenden Saldo.");
            return check;
        }
        return before;
    }

    void applyBalance(const BalanceCheck& check) {
        if (check.signsFromBalance) {
            m_plan.sign = SignRule::fromBalance;
            takeSignsFromBalance(m_rows, check.newestFirst);
            tell(headerLine(), m_plan.roles.balance, "Die Vorzeichen ergeben sich aus dem laufenden Saldo.");
        } else if (check.signsInverted && m_plan.sign == SignRule::asWritten) {
            m_plan.sign = SignRule::inverted;
            turnSigns(m_rows);
            tell(headerLine(), m_plan.roles.amount,
                 "Anfangs- und Endsaldo passen nur, wenn positive Beträge Ausgaben sind.");
        }
    }

    void decideByWords() {
        switch (CardStatements::signs(m_table, m_plan, m_rows)) {
        case CardSigns::inverted:
            m_plan.sign = SignRule::inverted;
            turnSigns(m_rows);
            m_decision.doubt += kGuessedSigns;
            tell(headerLine(), m_plan.roles.amount, "Kreditkartenabrechnung, die Ausgaben als positive Beträge führt.");
            break;
        case CardSigns::unclear:
            m_decision.undecided = Messages::make(MessageId::signAmbiguous, headerLine());
            break;
        case CardSigns::asWritten:
            decideByKind();
            break;
        }
    }

    /// No amount has a sign, and the kinds of booking tell of money that goes out.
    void decideByKind() {
        if (m_plan.roles.kind < 0 || std::any_of(m_rows.begin(), m_rows.end(), [](const BookingRow& row) {
                return row.amount && row.amount->isNegative();
            }))
            return;
        std::size_t out = 0;
        std::size_t unknown = 0;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (!isBooking(m_rows[i]) || m_rows[i].amount->isZero())
                continue;
            const auto sign = SignWords::ofKind(m_table.cell(m_plan.region.begin + i, m_plan.roles.kind));
            out += sign == AmountCell::Sign::minus ? 1U : 0U;
            unknown += sign ? 0U : 1U;
        }
        if (out == 0)
            return;
        if (unknown > 0) {
            m_decision.undecided = Messages::make(MessageId::signAmbiguous, headerLine());
            return;
        }
        m_plan.sign = SignRule::kindOfBooking;
        m_plan.roles.sign = m_plan.roles.kind;
        m_rows = BookingRows::read(m_table, m_plan);
        m_decision.doubt += kGuessedSigns;
        tell(headerLine(), m_plan.roles.sign,
             "Kein Betrag hat ein Vorzeichen; ob er Einnahme oder Ausgabe ist, sagt die Art der Buchung.");
    }

    const RecordTable& m_table;
    const ColumnChoice& m_choice;
    TablePlan& m_plan;
    std::vector<BookingRow>& m_rows;
    SignDecision m_decision;
};

} // namespace

namespace Signs {

void adoptColumns(TablePlan& plan, const ColumnChoice& choice) {
    if (plan.roles.twoAmounts()) {
        plan.sign = SignRule::twoColumns;
        const auto mostlyNegative = [&](int column) {
            if (column < 0)
                return false;
            const ColumnProfile& profile = choice.profiles[static_cast<std::size_t>(column)];
            return profile.negative * 2 > profile.filled - profile.zeros;
        };
        plan.debitIsNegative = mostlyNegative(plan.roles.debit);
        // A card's statement counts the debt: purchases raise it, payments lower it.
        plan.creditIsNegative = !plan.debitIsNegative && mostlyNegative(plan.roles.credit);
    } else if (plan.roles.sign >= 0) {
        plan.sign = SignRule::signColumn;
    }
}

SignDecision decide(const RecordTable& table, const ColumnChoice& choice, bool columnsByUser, TablePlan& plan,
                    std::vector<BookingRow>& rows) {
    return Decider(table, choice, plan, rows).run(columnsByUser);
}

} // namespace Signs
