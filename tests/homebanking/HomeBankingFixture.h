// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "framework/datamodel_api/DataModelApi.h"
#include "framework/Latin1.h"
#include "homebanking/XmlImportData.h"
#include "support/FinanceModel.h"
#include "support/SmartDateFixture.h"

/// Documents as tests write them: what stands inside the list is the point.
namespace HomeBankingXml {

inline std::string document(const std::string& inside, const std::string& version = "1.0") {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<HomeBanking version=\"" + version + "\">" + inside +
           "</HomeBanking>\n";
}

inline std::string konto(const std::string& blz, const std::string& ktonr, const std::string& name) {
    return "<konto><blz>" + blz + "</blz><ktonr>" + ktonr + "</ktonr><bezeichnung>" + name + "</bezeichnung></konto>\n";
}

inline std::string kontoliste(const std::string& inside) {
    return document("<kontoliste>\n" + inside + "</kontoliste>");
}

/// A list for the account 10020030 / 123456789.
inline std::string buchungsliste(const std::string& inside) {
    return document("<buchungsliste blz=\"10020030\" ktonr=\"123456789\">\n" + inside + "</buchungsliste>");
}

inline std::string buchung(const std::string& id, const std::string& rest = "<betrag>1,00</betrag>") {
    return "<buchung><id>" + id + "</id>" + rest + "</buchung>\n";
}

inline std::string repeated(const std::string& text, int times) {
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

/// Error texts: a document that is none, and one without accounts.
inline constexpr const char* kNotXml = "Die XML-Datei ist ungültig.\r\n"_latin1;
inline constexpr const char* kNoAccounts = "Keine Konten vorhanden.";

} // namespace HomeBankingXml

/// A model with one account, 10020030 / 123456789, in row 1, and imports of
/// documents in memory into it through `Door`: the front door or what is behind
/// it. Dates start as in a fresh program.
template <typename Door>
class HomeBankingFixture : public SmartDateFixture {
protected:
    static constexpr const char* kAccount = "HomeBankingImport/1/";

    HomeBankingFixture() { addAccount(m_model, "10020030", "123456789", "Girokonto"); }

    static void addAccount(const FinanceModel& model, const char* blz, const char* ktonr, const char* name) {
        auto* table = dynamic_cast<NodeTable*>(model.node("HomeBankingImport"));
        const int row = table->getNodeCount() + 1;
        table->create(static_cast<unsigned short>(row));
        const std::string path = "HomeBankingImport/" + std::to_string(row) + "/";
        model.set(path + "BLZ", textValue(blz));
        model.set(path + "KtoNummer", textValue(ktonr));
        model.set(path + "Bezeichnung", textValue(name));
        model.set(path + "ExistsInHB", DataType::makeBoolean(true));
    }

    XmlImportData input(std::string_view document) { return input(document, m_model); }
    static XmlImportData input(std::string_view document, const FinanceModel& model) {
        XmlImportData data;
        data.setImportTargetNode(model.root());
        data.setXmlContent(document.data(), document.size());
        return data;
    }

    bool updateAccounts(std::string_view document) { return m_door.updateAccountList(input(document)); }
    bool importBookings(std::string_view document) { return m_door.importAccountingEntries(input(document)); }
    std::string error() const { return m_door.getErrorMsg(); }

    /// A field of the first account: "Bezeichnung", or "DataSets/2/Betrag".
    std::string account(const std::string& field) const { return m_model.text(kAccount + field); }
    int bookings() const { return m_model.rows(std::string(kAccount) + "DataSets"); }
    int accounts() const { return m_model.rows("HomeBankingImport"); }

    FinanceModel m_model;
    Door m_door;
};

/// Today's date in UTC as the host shows it.
inline std::string utcToday() {
    const std::chrono::year_month_day today(std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    DataType value;
    value = DMDate(static_cast<unsigned>(today.day()), static_cast<unsigned>(today.month()),
                   static_cast<unsigned>(static_cast<int>(today.year())));
    return value.asString(true, 2);
}
