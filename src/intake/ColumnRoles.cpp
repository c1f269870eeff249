// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ColumnRoles.h"

#include <algorithm>

#include "intake/Dates.h"
#include "intake/Money.h"
#include "intake/TextTools.h"

namespace {

constexpr std::size_t kSampleSize = 800;
constexpr int kSureName = 85;

class Chooser {
public:
    Chooser(const RecordTable& table, const TableRegion& region, const ColumnLexicon& lexicon)
        : m_table(table), m_region(region) {
        m_records = ColumnChooser::sample(table, region);
        int width = region.header ? table.record(*region.header).cellCount : 0;
        for (const std::size_t record : m_records)
            width = std::max(width, table.record(record).cellCount);
        m_choice.profiles = ColumnProfiles::make(table, m_records, width);
        m_names.resize(m_choice.profiles.size());
        if (region.header) {
            for (int i = 0; i < width; ++i)
                m_names[static_cast<std::size_t>(i)] = lexicon.scores(table.cell(*region.header, i));
            m_choice.roles.width = table.record(*region.header).cellCount;
        } else {
            m_choice.roles.width = width;
        }
        m_taken.assign(m_choice.profiles.size(), false);
    }

    ColumnChoice run() {
        chooseDate();
        chooseAmount();
        chooseSign();
        chooseTexts();
        return std::move(m_choice);
    }

private:
    int columns() const { return static_cast<int>(m_choice.profiles.size()); }
    const ColumnProfile& profile(int column) const { return m_choice.profiles[static_cast<std::size_t>(column)]; }
    int score(int column, Role role) const { return m_names[static_cast<std::size_t>(column)].of(role); }
    bool free(int column) const { return !m_taken[static_cast<std::size_t>(column)]; }
    int take(int column) {
        if (column >= 0)
            m_taken[static_cast<std::size_t>(column)] = true;
        return column;
    }
    bool ignored(int column, Role role) const { return score(column, Role::ignore) > score(column, role); }

    /// The free column with the highest score above `least` that `fits`; the first of equals.
    template <typename Score, typename Fits>
    int bestColumn(int least, Score scoreOf, Fits fits) const {
        int best = -1;
        int bestScore = least;
        for (int column = 0; column < columns(); ++column) {
            const int value = free(column) ? scoreOf(column) : 0;
            if (value > bestScore && fits(column)) {
                best = column;
                bestScore = value;
            }
        }
        return best;
    }
    int bestNamed(Role role, int least = 0) const {
        return bestColumn(
            least, [&](int c) { return ignored(c, role) ? 0 : score(c, role); }, [](int) { return true; });
    }

    void chooseDate() {
        ColumnRoles& roles = m_choice.roles;
        const auto named = [&](int c) { return score(c, Role::date); };
        const auto anyDate = [&](int c) {
            const ColumnProfile& p = profile(c);
            return p.isDate() || p.isCompactDate() || p.isDayMonth();
        };
        int column = bestColumn(0, named, anyDate);
        m_choice.dateByName = column >= 0;
        if (column < 0) {
            column = bestColumn(
                0, [](int) { return 1; }, [&](int c) { return profile(c).isDate(); });
        }
        if (column < 0 && !m_region.header) {
            column = bestColumn(
                0, [](int) { return 1; }, [&](int c) { return profile(c).isCompactDate(); });
        }
        roles.date = take(column);
        if (column >= 0 && profile(column).isDayMonth() && !profile(column).isDate())
            roles.yearSource = take(bestColumn(
                0, [&](int c) { return 1 + named(c); }, [&](int c) { return profile(c).isDate(); }));
        // Further dates serve nothing, but they are no texts either.
    }

    void chooseAmount() {
        ColumnRoles& roles = m_choice.roles;
        const auto isMoney = [&](int c) { return profile(c).isAmount() && !profile(c).isDate(); };
        const auto named = [&](Role role) {
            return bestColumn(
                0, [&, role](int c) { return ignored(c, role) ? 0 : score(c, role); }, isMoney);
        };
        roles.balance = bestColumn(
            0, [&](int c) { return score(c, Role::balance) >= score(c, Role::amount) ? score(c, Role::balance) : 0; },
            [&](int c) { return isMoney(c); });
        if (roles.balance >= 0)
            take(roles.balance);

        const int amount = named(Role::amount);
        const int debit = named(Role::debit);
        const int credit = named(Role::credit);
        const bool pair = debit >= 0 && credit >= 0 && debit != credit && score(debit, Role::debit) >= kSureName &&
                          score(credit, Role::credit) >= kSureName;
        const bool amountSure = amount >= 0 && score(amount, Role::amount) >= kSureName;
        if (pair && (!amountSure || profile(amount).negative == 0) && fillEachOther(debit, credit)) {
            roles.debit = take(debit);
            roles.credit = take(credit);
            m_choice.amountByName = true;
        } else if (amount >= 0) {
            roles.amount = take(amount);
            m_choice.amountByName = true;
        } else if (debit >= 0 || credit >= 0) {
            roles.debit = take(debit);
            roles.credit = credit == debit ? -1 : take(credit);
            m_choice.amountByName = true;
        } else {
            chooseAmountByValues(isMoney);
        }
        collectOtherAmounts();
    }

    void collectOtherAmounts() {
        for (int c = 0; c < columns(); ++c) {
            const ColumnProfile& p = profile(c);
            if (free(c) && p.isAmount() && !p.isDate() && p.marked * 2 >= p.filled)
                m_choice.otherAmounts.push_back(c);
        }
    }

    /// Whether at most one of the two columns is filled, record by record; or one holds zero.
    bool fillEachOther(int debit, int credit) const {
        int both = 0;
        int any = 0;
        for (const std::size_t record : m_records) {
            const auto filled = [&](int column) {
                const auto amount = AmountCells::read(m_table.cell(record, column), ',');
                const auto other = AmountCells::read(m_table.cell(record, column), '.');
                return (amount && !amount->magnitude.isZero()) || (other && !other->magnitude.isZero());
            };
            const bool d = filled(debit);
            const bool c = filled(credit);
            both += d && c ? 1 : 0;
            any += d || c ? 1 : 0;
        }
        return both * 10 <= any;
    }

    template <typename IsMoney>
    void chooseAmountByValues(IsMoney isMoney) {
        ColumnRoles& roles = m_choice.roles;
        const auto likely = [&](int c) {
            const ColumnProfile& p = profile(c);
            if (score(c, Role::ignore) > 0 || score(c, Role::balance) > 0 || p.isCode() || p.isConstant())
                return 0;
            return (p.negative > 0 ? 4 : 0) + (p.marked * 2 >= p.filled ? 2 : 0) + (p.filled * 2 >= p.rows ? 1 : 0);
        };
        int column = bestColumn(1, likely, isMoney);
        if (column < 0) // a single booking is constant in every column
            column = bestColumn(
                0, [&](int c) { return profile(c).marked > 0 && score(c, Role::ignore) == 0 ? 1 : 0; }, isMoney);
        for (int c = 0; c < columns(); ++c) {
            if (c != column && free(c) && isMoney(c) && likely(c) > 2)
                m_choice.rivalAmounts.push_back(c);
        }
        roles.amount = take(column);
    }

    void chooseSign() {
        ColumnRoles& roles = m_choice.roles;
        if (roles.amount < 0 || profile(roles.amount).negative > 0)
            return;
        const auto closeness = [&](int c) {
            // By name, or else the nearest: banks put the mark right beside the amount.
            const int distance = c > roles.amount ? c - roles.amount : roles.amount - c;
            return score(c, Role::sign) > 0 ? 1000 + score(c, Role::sign) : std::max(1, 100 - distance);
        };
        roles.sign = bestColumn(0, closeness, [&](int c) { return profile(c).isSignColumn(); });
        take(roles.sign);
    }

    void chooseTexts() {
        ColumnRoles& roles = m_choice.roles;
        roles.category = take(bestNamed(Role::category));
        roles.subcategory = take(bestNamed(Role::subcategory));
        roles.status = bestNamed(Role::status, 90);
        if (roles.status >= 0 && !mentionsPending(roles.status))
            roles.status = -1;
        take(roles.status);
        if (m_region.header && hasTextNames()) {
            chooseCounterparty();
            chooseNamedTexts();
        } else {
            chooseTextsByValues();
        }
    }

    bool mentionsPending(int column) const {
        return std::any_of(m_records.begin(), m_records.end(), [&](std::size_t record) {
            const std::string text = TextTools::fold(m_table.cell(record, column));
            return text.find("vorgemerkt") != text.npos || text.find("pending") != text.npos ||
                   text.find("gebucht") != text.npos || text.find("booked") != text.npos;
        });
    }

    bool hasTextNames() const {
        for (int c = 0; c < columns(); ++c) {
            for (const Role role :
                 {Role::counterparty, Role::recipient, Role::payer, Role::purpose, Role::postingText}) {
                if (score(c, role) > 0 && !ignored(c, role))
                    return true;
            }
        }
        return false;
    }

    void chooseCounterparty() {
        ColumnRoles& roles = m_choice.roles;
        const auto texty = [&](int c) { return !profile(c).isDate() && !profile(c).isCode(); };
        // Of two columns that name both sides, one holds the owner of the account
        // over and over: the other one tells more.
        const auto scoreOf = [&](int c) {
            const int s = ignored(c, Role::counterparty) ? 0 : score(c, Role::counterparty);
            return s == 0 || s < score(c, Role::purpose) ? 0 : s / 20 * 1000 + std::min(profile(c).distinct, 900);
        };
        const int both = bestColumn(0, scoreOf, texty);
        const auto oneSide = [&](Role role) {
            return bestColumn(
                0,
                [&, role](int c) {
                    return ignored(c, role) || score(c, Role::counterparty) > score(c, role) ? 0 : score(c, role);
                },
                texty);
        };
        const int recipient = oneSide(Role::recipient);
        const int payer = oneSide(Role::payer);
        if (recipient >= 0 && payer >= 0 && recipient != payer) {
            roles.recipient = take(recipient);
            roles.payer = take(payer);
            roles.counterparty = take(both);
        } else if (both >= 0) {
            roles.counterparty = take(both);
        } else {
            roles.counterparty = take(recipient >= 0 ? recipient : payer);
        }
    }

    void chooseNamedTexts() {
        ColumnRoles& roles = m_choice.roles;
        const auto purposeScore = [&](int c) {
            return free(c) && !ignored(c, Role::purpose) ? score(c, Role::purpose) : 0;
        };
        const auto postingScore = [&](int c) {
            return ignored(c, Role::postingText) ? 0 : score(c, Role::postingText);
        };
        roles.postingText = bestColumn(
            0, [&](int c) { return postingScore(c) > purposeScore(c) ? postingScore(c) : 0; },
            [&](int c) { return !profile(c).isDate() && !profile(c).isAmount(); });

        int least = 60;
        std::vector<int> found = collectPurpose(purposeScore, least);
        if (found.empty())
            found = collectPurpose(purposeScore, least = 1);
        if (found.empty() && roles.postingText >= 0 && !anyColumn([&](int c) { return purposeScore(c) >= 60; }))
            found = purposeFromPostingTexts(postingScore);
        for (const int column : found)
            take(column);
        if (std::find(found.begin(), found.end(), roles.postingText) != found.end())
            roles.postingText = -1;
        take(roles.postingText);
        roles.purpose = std::move(found);
        decideOverflow();
        decidePostingTextInPurpose();
    }

    template <typename Test>
    bool anyColumn(Test test) const {
        for (int c = 0; c < columns(); ++c) {
            if (test(c))
                return true;
        }
        return false;
    }

    template <typename Score>
    std::vector<int> collectPurpose(Score scoreOf, int least) const {
        std::vector<int> found;
        for (int c = 0; c < columns(); ++c) {
            if (scoreOf(c) >= least && c != m_choice.roles.postingText && profile(c).filled > 0 && !profile(c).isDate())
                found.push_back(c);
        }
        // What is the same in every record describes the account, not the booking.
        const auto constant = [&](int c) { return profile(c).isConstant(); };
        if (!std::all_of(found.begin(), found.end(), constant))
            std::erase_if(found, constant);
        return found;
    }

    /// No column is named for it: of the two kinds of posting text the one that varies is the purpose.
    template <typename Score>
    std::vector<int> purposeFromPostingTexts(Score postingScore) {
        int best = -1;
        for (int c = 0; c < columns(); ++c) {
            const bool candidate = free(c) && postingScore(c) > 0 && profile(c).isText();
            if (candidate && (best < 0 || richness(c) > richness(best)))
                best = c;
        }
        if (best < 0)
            return {};
        m_choice.roles.postingText = bestColumn(
            0, postingScore, [&](int c) { return c != best && !profile(c).isDate() && !profile(c).isAmount(); });
        return {best};
    }

    double richness(int c) const { return profile(c).averageLength() * profile(c).distinct; }

    void decideOverflow() {
        ColumnRoles& roles = m_choice.roles;
        if (!m_region.header || roles.purpose.empty() || roles.width >= columns())
            return;
        roles.overflowIsPurpose = roles.purpose.back() == roles.width - 1;
    }

    void decidePostingTextInPurpose() {
        ColumnRoles& roles = m_choice.roles;
        if (roles.postingText < 0 || roles.purpose.empty())
            return;
        int empty = 0;
        for (const std::size_t record : m_records) {
            const bool any = std::any_of(roles.purpose.begin(), roles.purpose.end(),
                                         [&](int c) { return !TextTools::trim(m_table.cell(record, c)).empty(); });
            empty += any ? 0 : 1;
        }
        // A text that is nearly always another one says more than the kind of booking.
        const ColumnProfile& posting = profile(roles.postingText);
        const bool telling = posting.filled > 1 && posting.distinct * 10 >= posting.filled * 7;
        roles.postingTextInPurpose = telling && empty * 3 > static_cast<int>(m_records.size());
    }

    void chooseTextsByValues() {
        ColumnRoles& roles = m_choice.roles;
        std::vector<int> texts;
        for (int c = 0; c < columns(); ++c) {
            if (free(c) && profile(c).isText() && !profile(c).isConstant() && profile(c).averageLength() > 3.0 &&
                score(c, Role::ignore) == 0)
                texts.push_back(c);
        }
        if (texts.empty())
            return;
        const int longest =
            *std::max_element(texts.begin(), texts.end(), [&](int a, int b) { return richness(a) < richness(b); });
        roles.purpose = {take(longest)};
        for (const int c : texts) {
            // Few different words, said again and again: kinds of booking.
            const bool kinds =
                c != longest && profile(c).distinct * 2 <= profile(c).filled && profile(c).averageLength() < 25;
            if (kinds && roles.postingText < 0)
                roles.postingText = take(c);
        }
        for (const int c : texts) {
            if (free(c) && roles.counterparty < 0 && profile(c).averageLength() < 40)
                roles.counterparty = take(c);
            else if (free(c))
                roles.purpose.push_back(take(c));
        }
        std::sort(roles.purpose.begin(), roles.purpose.end());
    }

    const RecordTable& m_table;
    const TableRegion& m_region;
    std::vector<std::size_t> m_records;
    std::vector<RoleScores> m_names;
    std::vector<bool> m_taken;
    ColumnChoice m_choice;
};

} // namespace

namespace ColumnChooser {

std::vector<std::size_t> sample(const RecordTable& table, const TableRegion& region) {
    std::vector<std::size_t> bookings;
    std::vector<std::size_t> others;
    const std::size_t count = region.end - region.begin;
    const std::size_t step = std::max<std::size_t>(1, count / kSampleSize);
    for (std::size_t i = region.begin; i < region.end; i += step) {
        if (table.record(i).blank)
            continue;
        if (TableFinder::looksLikeBooking(table, i))
            bookings.push_back(i);
        else if (table.record(i).cellCount >= 3)
            others.push_back(i);
    }
    // Bookings tell what the columns hold; where there are none, all else has to.
    return bookings.empty() ? others : bookings;
}

ColumnChoice choose(const RecordTable& table, const TableRegion& region, const ColumnLexicon& lexicon) {
    return Chooser(table, region, lexicon).run();
}

} // namespace ColumnChooser
