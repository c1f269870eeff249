// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ImportPlan.h"

int ImportPlan::preambleLines(const RecordTable& table) const {
    if (tables.empty())
        return 0;
    const TableRegion& region = tables.front().region;
    return table.record(region.header.value_or(region.begin)).firstLine;
}

std::map<std::string, std::vector<int>> ImportPlan::columns() const {
    std::map<std::string, std::vector<int>> fields;
    if (tables.empty())
        return fields;
    const ColumnRoles& roles = tables.front().roles;
    const auto add = [&](const char* field, int column) {
        if (column >= 0)
            fields[field].push_back(column);
    };
    add("Datum", roles.date);
    if (roles.amount >= 0) {
        add("Betrag", roles.amount);
        add("Betrag", tables.front().sign == SignRule::signColumn || tables.front().sign == SignRule::kindOfBooking
                          ? roles.sign
                          : -1);
    } else {
        add("Betrag", roles.debit);
        add("Betrag", roles.credit);
    }
    add("Empfaenger", roles.counterparty);
    add("Empfaenger", roles.recipient);
    add("Empfaenger", roles.payer);
    if (roles.postingTextInPurpose)
        add("Verwendungszweck", roles.postingText);
    for (const int column : roles.purpose)
        add("Verwendungszweck", column);
    add("Buchungstext", roles.postingText);
    add("Kategorie", roles.category);
    add("Unterkategorie", roles.subcategory);
    return fields;
}
