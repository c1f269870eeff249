// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/AmountColumns.h"

#include <algorithm>
#include <cstdlib>

#include "intake/TextTools.h"

namespace {

/// From this score on a name leaves no doubt.
constexpr int kSureName = 85;

class Chooser {
public:
    Chooser(ColumnSurvey& survey, ColumnChoice& choice) : m_survey(survey), m_choice(choice), m_roles(choice.roles) {}

    void run() {
        m_roles.balance = m_survey.take(m_survey.best(
            0, [&](int c) { return score(c, Role::balance) >= score(c, Role::amount) ? score(c, Role::balance) : 0; },
            [&](int c) { return m_survey.isMoney(c); }));
        chooseByName();
        if (!m_choice.amountByName) {
            chooseByValues();
        } else if (m_roles.amount >= 0) {
            settleParts();
            findEquals();
        }
        collectOthers();
        chooseSign();
        chooseCurrency();
    }

private:
    int score(int column, Role role) const { return m_survey.score(column, role); }
    const ColumnProfile& profile(int column) const { return m_survey.profile(column); }

    int named(Role role) const {
        return m_survey.best(
            0, [&](int c) { return m_survey.wanted(c, role); }, [&](int c) { return m_survey.isMoney(c); });
    }

    void chooseByName() {
        const int amount = named(Role::amount);
        const int debit = named(Role::debit);
        const int credit = named(Role::credit);
        const bool pair = debit >= 0 && credit >= 0 && debit != credit && score(debit, Role::debit) >= kSureName &&
                          score(credit, Role::credit) >= kSureName;
        const bool amountSure = amount >= 0 && score(amount, Role::amount) >= kSureName;
        if (pair && (!amountSure || profile(amount).negative == 0) && fillEachOther(debit, credit)) {
            m_roles.debit = m_survey.take(debit);
            m_roles.credit = m_survey.take(credit);
        } else if (amount >= 0) {
            m_roles.amount = m_survey.take(amount);
        } else if (debit >= 0 || credit >= 0) {
            m_roles.debit = m_survey.take(debit);
            m_roles.credit = credit == debit ? -1 : m_survey.take(credit);
            findOtherSide();
        }
        if (m_roles.amount < 0 && !m_roles.twoAmounts())
            m_roles.amount = m_survey.take(namedButDamaged());
        m_choice.amountByName = m_roles.amount >= 0 || m_roles.twoAmounts();
    }

    /// Where only one of debit and credit has a name that is known, the other one
    /// is the column that is filled where it is not.
    void findOtherSide() {
        const int known = std::max(m_roles.debit, m_roles.credit);
        if (m_roles.debit >= 0 && m_roles.credit >= 0)
            return;
        const int other = m_survey.take(m_survey.best(
            0, [&](int c) { return 1000 - std::abs(c - known); },
            [&](int c) { return m_survey.isMoney(c) && !m_survey.ignored(c, Role::amount) && completes(known, c); }));
        (m_roles.debit < 0 ? m_roles.debit : m_roles.credit) = other;
    }

    /// Whether one of the two holds an amount in nearly every record, never both.
    bool completes(int left, int right) const {
        int any = 0;
        int rightOnly = 0;
        for (const std::size_t record : m_survey.records()) {
            const bool l = moves(record, left);
            const bool r = moves(record, right);
            if (l && r)
                return false;
            any += l || r ? 1 : 0;
            rightOnly += r ? 1 : 0;
        }
        return rightOnly > 0 && any * 10 >= static_cast<int>(m_survey.records().size()) * 9;
    }

    bool moves(std::size_t record, int column) const {
        const auto amount = m_survey.amount(record, column);
        return amount && !amount->isZero();
    }

    /// A column that is surely called the amount, and where few are: what is no
    /// amount in it is refused, rather than taken from elsewhere.
    int namedButDamaged() const {
        return m_survey.best(
            kSureName - 1, [&](int c) { return m_survey.wanted(c, Role::amount); },
            [&](int c) { return profile(c).amounts() > 0 && !profile(c).isDate(); });
    }

    void chooseByValues() {
        const auto likely = [&](int c) {
            const ColumnProfile& p = profile(c);
            if (score(c, Role::ignore) > 0 || score(c, Role::balance) > 0 || p.isCode() || p.isConstant())
                return 0;
            return (p.negative > 0 ? 4 : 0) + (p.marked * 2 >= p.filled ? 2 : 0) + (p.filled * 2 >= p.rows ? 1 : 0);
        };
        const auto isMoney = [&](int c) { return m_survey.isMoney(c); };
        int column = m_survey.best(1, likely, isMoney);
        if (column < 0) // a single booking is constant in every column
            column = m_survey.best(
                0, [&](int c) { return profile(c).marked > 0 && score(c, Role::ignore) == 0 ? 1 : 0; }, isMoney);
        for (int c = 0; c < m_survey.columns(); ++c) {
            if (c != column && m_survey.free(c) && isMoney(c) &&
                (likely(c) > 2 || isOtherSide(column, c) || couldAsWellBeIt(c)))
                m_choice.rivalAmounts.push_back(c);
        }
        for (const int c : {column - 1, column + 1}) {
            if (isEmptyOtherSide(column, c))
                m_choice.rivalAmounts.push_back(c);
        }
        m_roles.amount = m_survey.take(column);
    }

    /// Without names every full column in which decimals occur could be the amount as well.
    bool couldAsWellBeIt(int other) const {
        const ColumnProfile& p = profile(other);
        return !m_survey.hasHeader() && p.marked > 0 && p.filled * 2 >= p.rows && p.zeros < p.filled && !p.isCode();
    }

    /// Debit and credit without a name that tells which is which.
    bool isOtherSide(int column, int other) const {
        if (column < 0 || m_survey.score(other, Role::ignore) > 0)
            return false;
        const bool nothing = profile(other).zeros == profile(other).filled && profile(column).signs == 0;
        return completes(column, other) || nothing;
    }

    /// Amounts without any sign and an empty column beside them, neither with a
    /// name: perhaps a statement on which only one of debit and credit occurs.
    bool isEmptyOtherSide(int column, int other) const {
        return column >= 0 && other >= 0 && other < m_survey.columns() && !m_survey.hasHeader() &&
               profile(column).signs == 0 && profile(column).rows > 1 && profile(other).filled == 0;
    }

    /// Of gross, fee and net, net moves the account; of net, tax and gross, gross does.
    void settleParts() {
        const int net = partNamed(Role::net, -1);
        const int gross = partNamed(Role::gross, net);
        if (net < 0 || gross < 0 || !differ(net, gross))
            return;
        const int fee = partNamed(Role::fee, -1);
        const int tax = partNamed(Role::tax, -1);
        int moving = -1;
        if (fee >= 0 && (addsUp(gross, fee, net, 1) || addsUp(gross, fee, net, -1)))
            moving = net;
        else if (tax >= 0 && addsUp(net, tax, gross, 1))
            moving = gross;
        if (moving >= 0)
            m_roles.amount = m_survey.take(moving);
        else
            m_choice.rivalAmounts.push_back(m_roles.amount == net ? gross : net);
    }

    /// The chosen amount may serve as one of the parts.
    int partNamed(Role role, int except) const {
        int found = -1;
        for (int c = 0; c < m_survey.columns(); ++c) {
            const bool candidate =
                c != except && (m_survey.free(c) || c == m_roles.amount) && m_survey.isMoney(c) && score(c, role) > 0;
            const bool wanted = role == Role::fee || role == Role::tax || !m_survey.ignored(c, Role::amount);
            if (candidate && wanted && (found < 0 || score(c, role) > score(found, role)))
                found = c;
        }
        return found;
    }

    /// Whether `whole` is `part` plus `sign` times `extra` in every record, and not only because nothing is extra.
    bool addsUp(int part, int extra, int whole, int sign) const {
        bool any = false;
        for (const std::size_t record : m_survey.records()) {
            const auto a = m_survey.amount(record, part);
            const auto sum = m_survey.amount(record, whole);
            const Money b = m_survey.amount(record, extra).value_or(Money{});
            if (!a || !sum)
                continue;
            if (!(*sum == (sign > 0 ? *a + b : *a - b)))
                return false;
            any = any || !b.isZero();
        }
        return any;
    }

    bool differ(int left, int right) const {
        return std::any_of(m_survey.records().begin(), m_survey.records().end(), [&](std::size_t record) {
            const auto a = m_survey.amount(record, left);
            const auto b = m_survey.amount(record, right);
            return a && b && !a->isZero() && !b->isZero() && !(a->magnitude() == b->magnitude());
        });
    }

    /// Two columns of one name and different values: amounts in two currencies.
    void findEquals() {
        const int sure = score(m_roles.amount, Role::amount);
        for (int c = 0; c < m_survey.columns(); ++c) {
            if (m_survey.free(c) && m_survey.isMoney(c) && sure >= kSureName &&
                m_survey.wanted(c, Role::amount) >= sure && differ(c, m_roles.amount))
                m_choice.rivalAmounts.push_back(c);
        }
    }

    void collectOthers() {
        for (int c = 0; c < m_survey.columns(); ++c) {
            const ColumnProfile& p = profile(c);
            if (m_survey.free(c) && m_survey.isMoney(c) && p.marked * 2 >= p.filled)
                m_choice.otherAmounts.push_back(c);
        }
    }

    /// Whether at most one of the two columns is filled, record by record; or one holds zero.
    bool fillEachOther(int debit, int credit) const {
        int both = 0;
        int any = 0;
        for (const std::size_t record : m_survey.records()) {
            const bool d = moves(record, debit);
            const bool c = moves(record, credit);
            both += d && c ? 1 : 0;
            any += d || c ? 1 : 0;
        }
        return both * 10 <= any;
    }

    void chooseSign() {
        if (m_roles.amount < 0 || profile(m_roles.amount).negative > 0)
            return;
        const auto distance = [&](int c) { return c > m_roles.amount ? c - m_roles.amount : m_roles.amount - c; };
        const auto closeness = [&](int c) {
            // By name, or else the nearest: banks put the mark right beside the amount.
            return score(c, Role::sign) > 0 ? 1000 + score(c, Role::sign) : std::max(1, 100 - distance(c));
        };
        m_roles.sign = m_survey.take(m_survey.best(0, closeness, [&](int c) {
            const ColumnProfile& p = profile(c);
            // Words that are all of one kind are a mark only where a mark is expected.
            const bool word = p.minusWords > 0 && p.averageLength() > 3.0; // "Cargo", "Belastung"
            const bool expected =
                score(c, Role::sign) > 0 || (distance(c) <= (word ? 3 : 2) && (word || p.averageLength() <= 2.0));
            return p.isSignColumn() && (expected || (p.minusWords > 0 && p.plusWords > 0));
        }));
    }

    void chooseCurrency() {
        const int beside = std::max({m_roles.amount, m_roles.debit, m_roles.credit});
        m_roles.currency = m_survey.take(m_survey.best(
            0,
            [&](int c) {
                const int distance =
                    c > beside ? c - beside : 2 * (beside - c); // behind the amount rather than before it
                return m_survey.wanted(c, Role::currency) > 0 ? std::max(1, 200 - distance) : 0;
            },
            [&](int c) { return profile(c).filled > 0 && profile(c).averageLength() <= 4.0; }));
    }

    ColumnSurvey& m_survey;
    ColumnChoice& m_choice;
    ColumnRoles& m_roles;
};

} // namespace

namespace AmountColumns {

void choose(ColumnSurvey& survey, ColumnChoice& choice) { Chooser(survey, choice).run(); }

} // namespace AmountColumns
