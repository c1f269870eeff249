// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ColumnChooser.h"

#include <algorithm>

#include "intake/AmountColumns.h"
#include "intake/ColumnSurvey.h"
#include "intake/DateColumns.h"
#include "intake/TextColumns.h"

namespace {

int firstText(const ColumnSurvey& survey) {
    for (int column = 0; column < survey.columns(); ++column) {
        if (survey.profile(column).isText() && survey.profile(column).averageLength() > 3.0)
            return column;
    }
    return -1;
}

} // namespace

namespace ColumnChooser {

ColumnChoice choose(const RecordTable& table, const TableRegion& region, const ColumnLexicon& lexicon) {
    ColumnSurvey survey(table, region, lexicon);
    ColumnChoice choice;
    choice.roles.width = survey.headerWidth();
    if (survey.hasHeader())
        choice.roles.fullWidth = std::max(survey.headerWidth(), survey.usualWidth());
    choice.roles.firstText = firstText(survey);
    // Each takes the columns that it needs; what is left may be text.
    DateColumns::choose(survey, choice);
    AmountColumns::choose(survey, choice);
    TextColumns::choose(survey, choice.roles);
    choice.profiles = survey.profiles();
    return choice;
}

} // namespace ColumnChooser
