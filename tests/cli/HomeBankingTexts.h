// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Home-banking documents for tests, one record per line.
namespace HomeBankingTexts {

inline constexpr const char* kStart = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<HomeBanking version=\"1.0\">\n";
inline constexpr const char* kEnd = "</HomeBanking>\n";

inline std::string account(const std::string& bankCode, const std::string& number, const std::string& name) {
    return "<konto><blz>" + bankCode + "</blz><ktonr>" + number + "</ktonr><bezeichnung>" + name +
           "</bezeichnung></konto>\n";
}
inline std::string accountList(const std::string& content) {
    return std::string(kStart) + "<kontoliste>\n" + content + "</kontoliste>\n" + kEnd;
}

inline std::string booking(const std::string& id, const std::string& date, const std::string& amount,
                           const std::string& more = "") {
    return "<buchung><id>" + id + "</id><datum>" + date + "</datum><betrag>" + amount + "</betrag>" + more +
           "</buchung>\n";
}
inline std::string bookingList(const std::string& content,
                               const std::string& attributes = "blz=\"100\" ktonr=\"0815\"") {
    return std::string(kStart) + "<buchungsliste " + attributes + ">\n" + content + "</buchungsliste>\n" + kEnd;
}

/// ASCII as UTF-16.
inline std::string utf16(const std::string& ascii, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii) {
        if (bigEndian)
            bytes += '\0';
        bytes += c;
        if (!bigEndian)
            bytes += '\0';
    }
    return bytes;
}

} // namespace HomeBankingTexts
