// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "BookingFormats.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "Bookings.h"

namespace {

constexpr std::string_view kBankCode = "10020030";

/// mm/dd/yyyy
std::string monthFirst(const std::string& date) {
    return date.substr(3, 2) + '/' + date.substr(0, 2) + '/' + date.substr(6);
}

/// -1,234.56
std::string english(std::string amount) {
    for (char& c : amount)
        c = c == ',' ? '.' : c == '.' ? ',' : c;
    return amount;
}

std::string utf8(const std::string& latin1) {
    std::string out;
    for (const char c : latin1) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80)
            out += c;
        else
            out.append({static_cast<char>(0xC0 | (code >> 6)), static_cast<char>(0x80 | (code & 0x3F))});
    }
    return out;
}

/// UTF-8, with the characters of markup as references.
std::string xmlText(const std::string& latin1) {
    std::string out;
    for (const char c : latin1) {
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else
            out += c;
    }
    return utf8(out);
}

/// In quotes whatever it holds.
std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text)
        out.append(c == '"' ? 2 : 1, c);
    return out + '"';
}

std::string element(std::string_view tag, const std::string& text) {
    std::string out;
    return out.append("<").append(tag).append(">").append(text).append("</").append(tag).append(">");
}

std::string accountNumber(std::uint32_t account) { return std::to_string(1'000'000 + account); }

std::string document(const std::string& inside) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<HomeBanking version=\"1.0\">\n" + inside + "</HomeBanking>\n";
}

} // namespace

namespace BookingFormats {

std::string qifDate(std::uint32_t number) { return monthFirst(Bookings::date(number)); }

std::string qifAmount(std::uint32_t number) { return english(Bookings::amount(number)); }

std::string qif(std::uint32_t count) {
    std::string file = "!Type:Bank\n";
    for (std::uint32_t number = 0; number < count; ++number) {
        const Bookings::Parts parts = Bookings::parts(number);
        file += 'D' + qifDate(number) + "\nT" + qifAmount(number) + "\nN" + parts.posting + "\nP" + parts.payee +
                "\nM" + parts.purpose + "\nL" + parts.group + ':' + parts.kind + "\n^\n";
    }
    return file;
}

std::string starMoney(std::uint32_t count) {
    constexpr std::size_t kPurposes = 14;
    constexpr std::size_t kPurposeLength = 27; // as in a transfer form
    std::string file = "BuchDatum|AgName1|Betrag|BtgWaehr";
    for (std::size_t i = 1; i <= kPurposes; ++i)
        file += "|VWZ" + std::to_string(i);
    file += "|Buchungstext|Kategorie|Unterkat\n";
    for (std::uint32_t number = 0; number < count; ++number) {
        Bookings::Parts parts = Bookings::parts(number);
        std::replace(parts.purpose.begin(), parts.purpose.end(), '"', '\''); // quotes would need quoting
        file += Bookings::date(number) + "|\"" + parts.payee + "\"|" + Bookings::amount(number) + "|EUR";
        for (std::size_t i = 0; i < kPurposes; ++i) {
            const std::size_t at = std::min(i * kPurposeLength, parts.purpose.size());
            file += '|' + parts.purpose.substr(at, kPurposeLength);
        }
        file += '|' + parts.posting + '|' + parts.group + '|' + parts.kind + '\n';
    }
    return file;
}

std::string statement(std::uint32_t count) {
    std::string file = "\xEF\xBB\xBF\"Kontoauszug\";\"Girokonto " + accountNumber(1) +
                       "\"\r\n\"Zeitraum\";\"01.01.2015 - 31.12.2024\"\r\n\r\n"
                       "Buchungstag;Wertstellung;Buchungstext;Empfänger;Verwendungszweck;Kategorie;Betrag;Währung\r\n";
    for (std::uint32_t number = 0; number < count; ++number) {
        const Bookings::Parts parts = Bookings::parts(number);
        const std::string date = Bookings::date(number);
        file.append(date).append(";").append(date);
        for (const std::string& text : {parts.posting, parts.payee, parts.purpose, parts.group})
            file += ';' + utf8(quoted(text));
        file += ';' + Bookings::amount(number) + ";EUR\r\n";
    }
    return file;
}

std::string accountList(std::uint32_t first, std::uint32_t count) {
    std::string list = "<kontoliste>\n";
    for (std::uint32_t account = first; account - first < count; ++account)
        list += element("konto", element("blz", std::string(kBankCode)) + element("ktonr", accountNumber(account)) +
                                     element("bezeichnung", "Konto " + std::to_string(account))) +
                '\n';
    return document(list + "</kontoliste>\n");
}

std::string bookingList(std::uint32_t account, std::uint32_t count) {
    std::string list =
        "<buchungsliste blz=\"" + std::string(kBankCode) + "\" ktonr=\"" + accountNumber(account) + "\">\n";
    for (std::uint32_t number = 0; number < count; ++number) {
        const Bookings::Parts parts = Bookings::parts(number);
        const std::string date = Bookings::date(number);
        list += element("buchung", element("id", std::to_string(number + 1)) + element("datum", date) +
                                       element("valuta", date) + element("gvcode", "051") +
                                       element("betrag", Bookings::amount(number)) +
                                       element("verwendungszweck", xmlText(parts.purpose)) +
                                       element("steuerrelevant", number % 7 == 0 ? "1" : "0") +
                                       element("empfaenger", xmlText(parts.payee)) + "<notiz/>" +
                                       element("kategorie", xmlText(parts.group))) +
                '\n';
    }
    return document(list + "</buchungsliste>\n");
}

} // namespace BookingFormats
