// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/TextColumns.h"

#include <algorithm>

#include "intake/StatusWords.h"
#include "intake/TextTools.h"

namespace {

/// Names of notes and remarks score less than this.
constexpr int kPurposeName = 60;

class Chooser {
public:
    Chooser(ColumnSurvey& survey, ColumnRoles& roles) : m_survey(survey), m_roles(roles) {}

    void run() {
        m_roles.category = m_survey.take(m_survey.bestNamed(Role::category));
        m_roles.subcategory = m_survey.take(m_survey.bestNamed(Role::subcategory));
        chooseStatus();
        m_roles.kind = kindOfBooking();
        if (m_survey.hasHeader() && hasTextNames()) {
            chooseCounterparty();
            chooseNamedTexts();
        } else {
            chooseByValues();
        }
    }

private:
    const ColumnProfile& profile(int column) const { return m_survey.profile(column); }
    int score(int column, Role role) const { return m_survey.score(column, role); }
    int wanted(int column, Role role) const { return m_survey.wanted(column, role); }
    double richness(int c) const { return profile(c).averageLength() * profile(c).distinct; }

    void chooseStatus() {
        constexpr int kSureName = 90;
        const int column = m_survey.bestNamed(Role::status, kSureName);
        if (column < 0)
            return;
        const bool known = std::any_of(m_survey.records().begin(), m_survey.records().end(), [&](std::size_t record) {
            return StatusWords::read(m_survey.cell(record, column)).has_value();
        });
        if (known)
            m_roles.status = m_survey.take(column);
    }

    int kindOfBooking() const {
        constexpr double kLongestKind = 40.0; // on average
        return m_survey.best(
            0, [&](int c) { return std::max(wanted(c, Role::postingText), wanted(c, Role::sign)); },
            [&](int c) { return profile(c).isText() && profile(c).averageLength() <= kLongestKind; });
    }

    bool hasTextNames() const {
        for (int c = 0; c < m_survey.columns(); ++c) {
            for (const Role role :
                 {Role::counterparty, Role::recipient, Role::payer, Role::purpose, Role::postingText}) {
                if (wanted(c, role) > 0)
                    return true;
            }
        }
        return false;
    }

    void chooseCounterparty() {
        const auto texty = [&](int c) {
            return !profile(c).isDate() && !profile(c).isCode() && !profile(c).isAmount();
        };
        const auto oneSide = [&](Role role, bool bothSidesToo) {
            return m_survey.best(
                0,
                [&, role](int c) {
                    const bool bothSides = score(c, Role::counterparty) > score(c, role);
                    return bothSides && !bothSidesToo ? 0 : wanted(c, role);
                },
                texty);
        };
        const int payer = oneSide(Role::payer, false);
        // "Payee name" means the other side, unless there is a payer beside it.
        const int recipient = oneSide(Role::recipient, payer >= 0);
        if (recipient >= 0 && payer >= 0 && recipient != payer) {
            m_roles.recipient = m_survey.take(recipient);
            m_roles.payer = m_survey.take(payer);
            m_roles.counterparty = m_survey.take(bothSides(texty));
        } else if (const int both = bothSides(texty); both >= 0) {
            m_roles.counterparty = m_survey.take(both);
        } else {
            m_roles.counterparty = m_survey.take(recipient >= 0 ? recipient : payer);
        }
    }

    /// Of two columns that name both sides, one holds the owner of the account
    /// over and over: the other one tells more.
    template <typename Fits>
    int bothSides(Fits fits) const {
        const auto scoreOf = [&](int c) {
            const int s = wanted(c, Role::counterparty);
            return s == 0 || s < score(c, Role::purpose) ? 0 : s / 20 * 1000 + std::min(profile(c).distinct, 900);
        };
        return m_survey.best(0, scoreOf, fits);
    }

    int purposeScore(int c) const { return m_survey.free(c) ? wanted(c, Role::purpose) : 0; }
    int postingScore(int c) const { return wanted(c, Role::postingText); }

    void chooseNamedTexts() {
        const auto noValue = [&](int c) { return !profile(c).isDate() && !profile(c).isAmount(); };
        m_roles.postingText = m_survey.best(
            0, [&](int c) { return postingScore(c) > purposeScore(c) ? postingScore(c) : 0; }, noValue);

        std::vector<int> found = purposeColumns(kPurposeName);
        if (found.empty())
            found = purposeOfLittleName();
        if (found.empty() && m_roles.postingText >= 0 && !anyPurposeName())
            found = purposeFromPostingTexts();
        if (found.empty()) {
            if (const int stranger = richestStranger(); stranger >= 0)
                found = {stranger};
        }
        for (const int column : found)
            m_survey.take(column);
        if (std::find(found.begin(), found.end(), m_roles.postingText) != found.end())
            m_roles.postingText = -1;
        m_survey.take(m_roles.postingText);
        m_roles.purpose = std::move(found);
        decideOverflow();
        decidePostingTextInPurpose();
    }

    bool anyPurposeName() const {
        for (int c = 0; c < m_survey.columns(); ++c) {
            if (purposeScore(c) >= kPurposeName)
                return true;
        }
        return false;
    }

    std::vector<int> purposeColumns(int least) const {
        std::vector<int> found;
        for (int c = 0; c < m_survey.columns(); ++c) {
            if (purposeScore(c) >= least && c != m_roles.postingText && profile(c).filled > 0 && !profile(c).isDate())
                found.push_back(c);
        }
        // What is the same in every record describes the account, not the booking.
        const auto constant = [&](int c) { return profile(c).isConstant(); };
        if (!std::all_of(found.begin(), found.end(), constant))
            std::erase_if(found, constant);
        return found;
    }

    /// Notes and remarks, unless they are rare and a column of unknown name says more.
    std::vector<int> purposeOfLittleName() const {
        std::vector<int> found = purposeColumns(1);
        const int stranger = richestStranger();
        const bool more = stranger >= 0 && std::all_of(found.begin(), found.end(), [&](int c) {
                              return profile(c).filled * 2 < profile(c).rows && richness(c) < richness(stranger);
                          });
        if (!found.empty() && more)
            return {stranger};
        return found;
    }

    int richestStranger() const {
        int found = -1;
        for (int c = 0; c < m_survey.columns(); ++c) {
            const ColumnProfile& p = profile(c);
            const bool candidate = m_survey.free(c) && m_survey.isStranger(c) && p.isText() && !p.isConstant() &&
                                   p.filled * 2 >= p.rows && p.averageLength() > 2.0;
            if (candidate && (found < 0 || richness(c) > richness(found)))
                found = c;
        }
        return found;
    }

    /// No column is named for it: of the two kinds of posting text the one that varies is the purpose.
    std::vector<int> purposeFromPostingTexts() {
        int found = -1;
        for (int c = 0; c < m_survey.columns(); ++c) {
            const bool candidate = m_survey.free(c) && postingScore(c) > 0 && profile(c).isText();
            if (candidate && (found < 0 || richness(c) > richness(found)))
                found = c;
        }
        if (found < 0)
            return {};
        m_roles.postingText = m_survey.best(
            0, [&](int c) { return postingScore(c); },
            [&](int c) { return c != found && !profile(c).isDate() && !profile(c).isAmount(); });
        return {found};
    }

    void decideOverflow() {
        if (!m_survey.hasHeader() || m_roles.purpose.empty() || m_roles.width >= m_survey.columns())
            return;
        m_roles.overflowIsPurpose = m_roles.purpose.back() == m_roles.width - 1;
    }

    void decidePostingTextInPurpose() {
        if (m_roles.postingText < 0 || m_roles.purpose.empty())
            return;
        std::size_t empty = 0;
        for (const std::size_t record : m_survey.records()) {
            const bool any = std::any_of(m_roles.purpose.begin(), m_roles.purpose.end(),
                                         [&](int c) { return !TextTools::trim(m_survey.cell(record, c)).empty(); });
            empty += any ? 0U : 1U;
        }
        // A text that is nearly always another one says more than the kind of booking.
        const ColumnProfile& posting = profile(m_roles.postingText);
        const bool telling = posting.filled > 1 && posting.distinct * 10 >= posting.filled * 7;
        m_roles.postingTextInPurpose = telling && empty * 3 > m_survey.records().size();
    }

    void chooseByValues() {
        std::vector<int> texts;
        for (int c = 0; c < m_survey.columns(); ++c) {
            if (m_survey.free(c) && profile(c).isText() && !profile(c).isConstant() &&
                profile(c).averageLength() > 3.0 && score(c, Role::ignore) == 0)
                texts.push_back(c);
        }
        if (texts.empty())
            return;
        const int longest =
            *std::max_element(texts.begin(), texts.end(), [&](int a, int b) { return richness(a) < richness(b); });
        m_roles.purpose = {m_survey.take(longest)};
        for (const int c : texts) {
            // Few different words, said again and again: kinds of booking.
            const bool kinds =
                c != longest && profile(c).distinct * 2 <= profile(c).filled && profile(c).averageLength() < 25;
            if (kinds && m_roles.postingText < 0)
                m_roles.postingText = m_survey.take(c);
        }
        for (const int c : texts) {
            if (m_survey.free(c) && m_roles.counterparty < 0 && profile(c).averageLength() < 40)
                m_roles.counterparty = m_survey.take(c);
            else if (m_survey.free(c))
                m_roles.purpose.push_back(m_survey.take(c));
        }
        std::sort(m_roles.purpose.begin(), m_roles.purpose.end());
    }

    ColumnSurvey& m_survey;
    ColumnRoles& m_roles;
};

} // namespace

namespace TextColumns {

void choose(ColumnSurvey& survey, ColumnRoles& roles) { Chooser(survey, roles).run(); }

} // namespace TextColumns
