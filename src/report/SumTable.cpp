// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/SumTable.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "report/GermanText.h"

namespace {

using Row = PageTable::Row;

Row rowOf(std::string name, const IncomeAndExpenses& amounts, Row::Kind kind = Row::Kind::plain) {
    return {{{std::move(name), {}},
             {GermanText::grouped(amounts.records), {}},
             {amounts.income.text(), {}},
             {amounts.expenses.text(), {}},
             {amounts.sum().text(), {}}},
            kind};
}

PageTable tableOf(std::string caption, std::string name) {
    PageTable table;
    table.caption = std::move(caption);
    table.firstIsName = true;
    table.columns = {{std::move(name), PageTable::Kind::text},
                     {"Datensätze", PageTable::Kind::number},
                     {"Einnahmen", PageTable::Kind::number},
                     {"Ausgaben", PageTable::Kind::number},
                     {"Summe", PageTable::Kind::number}};
    return table;
}

std::chrono::year_month monthOf(std::chrono::year_month_day day) { return {day.year(), day.month()}; }

/// The days of a digest, those for which `nameOf` is the same together.
template <typename NameOf>
void addPeriods(const RecordDigest& digest, NameOf nameOf, PageTable& table) {
    for (auto at = digest.days().begin(); at != digest.days().end();) {
        const std::string name = nameOf(at->first);
        IncomeAndExpenses amounts;
        for (; at != digest.days().end() && nameOf(at->first) == name; ++at)
            amounts += at->second;
        table.rows.push_back(rowOf(name, amounts));
    }
}

using Category = std::pair<const std::string, IncomeAndExpenses>;

/// Income and expenses together, as far as they can be compared.
std::int64_t turnover(const Category& category) {
    const auto size = [](const CentSum& sum) {
        const std::int64_t cents = sum.drawable().value_or(0);
        return cents < 0 ? -cents : cents;
    };
    return size(category.second.income) + size(category.second.expenses);
}

std::set<std::string> largest(const std::map<std::string, IncomeAndExpenses>& categories) {
    std::vector<const Category*> all;
    all.reserve(categories.size());
    for (const Category& category : categories)
        all.push_back(&category);
    std::stable_sort(all.begin(), all.end(),
                     [](const Category* a, const Category* b) { return turnover(*a) > turnover(*b); });
    std::set<std::string> names;
    for (std::size_t i = 0; i < std::min(all.size(), SumTable::kMostCategories); ++i)
        names.insert(all[i]->first);
    return names;
}

} // namespace

namespace SumTable {

PageTable byMonth(const RecordDigest& digest) {
    std::set<std::chrono::year_month> months;
    for (const auto& [day, amounts] : digest.days())
        months.insert(monthOf(day));
    const bool inYears = months.size() > kMostMonths;
    PageTable table = inYears ? tableOf("Summen nach Jahren", "Jahr") : tableOf("Summen nach Monaten", "Monat");
    if (inYears)
        addPeriods(
            digest, [](auto day) { return std::to_string(static_cast<int>(day.year())); }, table);
    else
        addPeriods(
            digest, [](auto day) { return GermanText::month(monthOf(day)); }, table);
    if (digest.undated().records != 0)
        table.rows.push_back(rowOf("ohne Datum", digest.undated()));
    table.rows.push_back(rowOf("Gesamt", digest.total(), Row::Kind::total));
    return table;
}

PageTable byCategory(const RecordDigest& digest) {
    PageTable table = tableOf("Summen nach Kategorien", "Kategorie");
    const std::set<std::string> shown = largest(digest.categories());
    IncomeAndExpenses others;
    for (const auto& [name, amounts] : digest.categories()) {
        if (shown.contains(name))
            table.rows.push_back(rowOf(name.empty() ? "ohne Kategorie" : name, amounts));
        else
            others += amounts;
    }
    const std::size_t rest = digest.categories().size() - shown.size();
    if (rest != 0)
        table.rows.push_back(rowOf(GermanText::counted(rest, "weitere Kategorie", "weitere Kategorien"), others));
    table.rows.push_back(rowOf("Gesamt", digest.total(), Row::Kind::total));
    return table;
}

} // namespace SumTable
