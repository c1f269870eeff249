// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The error text of a file that cannot be read; it speaks of XML in these modules too.
inline constexpr const char* kUnreadable = "Fehler beim Analysieren der Daten aus der XML-Datei.";

/// Fields as one line of an export.
inline std::string joined(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields)
        line += (&field == fields.data() ? "" : "|") + field;
    return line + "\n";
}

/// One line of the fixed layout of 21 columns, each by what it is.
struct StarMoneyLine {
    std::string date = "31.12.2004";
    std::string payee{};
    std::string amount = "1,00";
    std::string currency = "EUR";
    std::vector<std::string> purpose{}; ///< up to 14 columns
    std::string postingText{};
    std::string category{};
    std::string subcategory{};

    std::string text() const {
        std::vector<std::string> fields = {date, payee, amount, currency};
        for (std::size_t i = 0; i < 14; ++i)
            fields.push_back(i < purpose.size() ? purpose[i] : "");
        fields.insert(fields.end(), {postingText, category, subcategory});
        return joined(fields);
    }
};

/// The header line of such a file.
inline std::string starMoneyHeader() {
    return "BuchDatum|AgName1|Betrag|BtgWaehr|VWZ1|VWZ2|VWZ3|VWZ4|VWZ5|VWZ6|VWZ7|VWZ8|VWZ9|VWZ10|VWZ11|VWZ12|VWZ13|"
           "VWZ14|Buchungstext|Kategorie|Unterkat\n";
}
