// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/MonthNames.h"

#include <algorithm>
#include <array>
#include <string>

#include "intake/TextTools.h"

namespace {

struct MonthName {
    std::string_view name; ///< folded
    int month;
};
constexpr std::array<MonthName, 97> kMonths = {{
    {"januar", 1},     {"jaenner", 1},   {"january", 1},      {"janvier", 1},       {"gennaio", 1},    {"enero", 1},
    {"januari", 1},    {"janeiro", 1},   {"styczen", 1},      {"stycznia", 1},      {"februar", 2},    {"feber", 2},
    {"february", 2},   {"fevrier", 2},   {"febbraio", 2},     {"febrero", 2},       {"februari", 2},   {"fevereiro", 2},
    {"luty", 2},       {"lutego", 2},    {"maerz", 3},        {"mrz", 3},           {"march", 3},      {"mars", 3},
    {"marzo", 3},      {"maart", 3},     {"mrt", 3},          {"marco", 3},         {"marzec", 3},     {"marca", 3},
    {"april", 4},      {"avril", 4},     {"aprile", 4},       {"abril", 4},         {"kwiecien", 4},   {"kwietnia", 4},
    {"mai", 5},        {"may", 5},       {"maggio", 5},       {"mayo", 5},          {"mei", 5},        {"maj", 5},
    {"maio", 5},       {"maja", 5},      {"juni", 6},         {"june", 6},          {"juin", 6},       {"giugno", 6},
    {"junio", 6},      {"junho", 6},     {"czerwiec", 6},     {"czerwca", 6},       {"juli", 7},       {"july", 7},
    {"juillet", 7},    {"luglio", 7},    {"julio", 7},        {"julho", 7},         {"lipiec", 7},     {"lipca", 7},
    {"august", 8},     {"aout", 8},      {"agosto", 8},       {"augustus", 8},      {"augusti", 8},    {"sierpien", 8},
    {"sierpnia", 8},   {"september", 9}, {"septembre", 9},    {"settembre", 9},     {"septiembre", 9}, {"setembro", 9},
    {"wrzesien", 9},   {"wrzesnia", 9},  {"oktober", 10},     {"october", 10},      {"octobre", 10},   {"ottobre", 10},
    {"octubre", 10},   {"outubro", 10},  {"pazdziernik", 10}, {"pazdziernika", 10}, {"november", 11},  {"novembre", 11},
    {"noviembre", 11}, {"novembro", 11}, {"listopad", 11},    {"listopada", 11},    {"dezember", 12},  {"december", 12},
    {"decembre", 12},  {"dicembre", 12}, {"diciembre", 12},   {"dezembro", 12},     {"desember", 12},  {"grudzien", 12},
    {"grudnia", 12},
}};
constexpr std::size_t kShortest = 3;

/// By name, so that those which begin alike stand together.
constexpr auto kMonthsByName = [] {
    auto sorted = kMonths;
    std::sort(sorted.begin(), sorted.end(), [](const MonthName& a, const MonthName& b) { return a.name < b.name; });
    return sorted;
}();

constexpr std::array<std::string_view, 40> kWeekdays = {
    "mo",        "di",         "mi",      "do",       "fr",        "sa",      "so",     "mon",
    "tue",       "wed",        "thu",     "fri",      "sat",       "sun",     "montag", "dienstag",
    "mittwoch",  "donnerstag", "freitag", "samstag",  "sonnabend", "sonntag", "monday", "tuesday",
    "wednesday", "thursday",   "friday",  "saturday", "sunday",    "lun",     "mar",    "mer",
    "jeu",       "ven",        "sam",     "dim",      "gio",       "sab",     "dom",    "tues",
};

} // namespace

namespace MonthNames {

int month(std::string_view word) {
    const std::string folded = TextTools::fold(word);
    if (folded.size() < kShortest)
        return 0;
    int found = 0;
    const auto* row =
        std::lower_bound(kMonthsByName.begin(), kMonthsByName.end(), folded,
                         [](const MonthName& known, const std::string& name) { return known.name < name; });
    for (; row != kMonthsByName.end() && row->name.starts_with(folded); ++row) {
        if (found != 0 && found != row->month)
            return 0;
        found = row->month;
    }
    return found;
}

bool isWeekday(std::string_view word) {
    return std::find(kWeekdays.begin(), kWeekdays.end(), TextTools::fold(word)) != kWeekdays.end();
}

} // namespace MonthNames
