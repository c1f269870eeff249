// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "intake/Dates.h"
#include "intake/InspectionOptions.h"
#include "intake/IntakeMessage.h"
#include "intake/Money.h"
#include "intake/PhysicalLines.h"
#include "intake/QifFile.h"
#include "intake/Reason.h"

/// How a QIF file writes dates and amounts, found from all of its records.
class QifForms {
public:
    QifForms(const QifFile& qif, const PhysicalLines& file, const InspectionOptions& options);

    /// Set when dates or amounts could be read in two ways.
    const std::optional<IntakeMessage>& undecided() const { return m_undecided; }
    const std::vector<Reason>& reasons() const { return m_reasons; }
    /// The order of the dates rests on other signs than the dates themselves.
    bool orderIsGuessed() const { return m_orderIsGuessed; }

    std::optional<Day> day(std::string_view text) const;
    /// Nothing for "1.234" where the point is the decimal mark: nobody counts in thousandths.
    std::optional<Money> amount(std::string_view text) const;
    /// Whether the library reads this date, which `day` reads, as the same day.
    bool libraryReadsDate(std::string_view text) const;

private:
    struct Samples;

    bool decideMark(const Samples& samples);
    bool decideOrder(const Samples& samples);
    void findMonthFirst(const Samples& samples);

    InspectionOptions m_options;
    char m_mark = '.';
    bool m_markIsProven = false;
    bool m_thousandths = false; ///< "1,250" has three decimals
    std::optional<DateOrder> m_order;
    bool m_orderIsGuessed = false;
    /// The library finds out by itself that the month comes first: every date is
    /// in the one form, and one of them has a day above twelve.
    bool m_libraryLearnsMonthFirst = false;
    std::vector<Reason> m_reasons;
    std::optional<IntakeMessage> m_undecided;
};
