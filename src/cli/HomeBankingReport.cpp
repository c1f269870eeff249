// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingReport.h"

#include "cli/SafeText.h"

Json HomeBankingReport::json(const HomeBankingDocument& document) const {
    Json object = {{"file", file},
                   {"result", result},
                   {"importedCount", records.imported},
                   {"refusedCount", records.refused},
                   {"undatedCount", undatedCount},
                   {"errorText", errorText},
                   {"committed", committed}};
    if (records.known)
        object["knownCount"] = *records.known;
    if (document.isAccountList)
        object["accounts"] = accounts;
    object["lines"] = FileReportText::json(lines);
    object["records"] = FileReportText::json(records);
    object["messages"] = FileReportText::json(messages);
    return object;
}

std::string HomeBankingReport::summary(const HomeBankingDocument& document) const {
    std::string text = SafeText::printable(file) + ": ";
    if (!committed && broughtNothingNew())
        return text + FileReportText::nothingNew(*records.known, records.refused);
    if (!committed)
        return text + "nicht übernommen; der Bestand ist unverändert.";
    text += std::to_string(records.imported) + " " + (records.imported == 1 ? document.one : document.many) + " " +
            document.done;
    if (records.refused != 0)
        text += ", " + std::to_string(records.refused) + " abgelehnt";
    if (records.known.value_or(0) != 0)
        text += ", " + std::to_string(*records.known) + " schon im Bestand";
    if (undatedCount != 0)
        text += ", davon " + std::to_string(undatedCount) + " ohne Datum";
    return text + ".";
}
