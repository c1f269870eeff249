// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "framework/Latin1.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/ImportHomeBankingData.h"
#include "support/TemporaryFile.h"

// The samples in data/, the examples in the description of the format, and the
// schema: they fit each other and what the library reads.
namespace {

const std::string kRoot = IMPORT_MODULE_ROOT;
const std::string kSchema = kRoot + "/docs/formats/homebanking.xsd";
const std::string kDescription = kRoot + "/docs/formats/homebanking-xml.md";

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot be read: " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The XML examples of the description, in order.
std::vector<std::string> examples() {
    const std::string text = contentOf(kDescription);
    const std::string opening = "```xml\n";
    std::vector<std::string> found;
    for (auto at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
        at += opening.size();
        found.push_back(text.substr(at, text.find("```", at) - at));
    }
    return found;
}

bool fitsTheSchema(const std::string& path) {
    const std::string command = "'" IMPORT_MODULE_XMLLINT "' --nonet --noout --schema '" + kSchema + "' '" + path +
                                "' >'" + path + ".log' 2>&1";
    constexpr int kValid = 0;
    constexpr int kInvalid = 3 << 8; // xmllint's status 3 as a process ends with it
    const int status = std::system(command.c_str());
    if (status != kValid && status != kInvalid)
        throw std::runtime_error("xmllint did not check " + path + ": " + contentOf(path + ".log"));
    return status == kValid;
}

bool documentFitsTheSchema(const std::string& document) {
    const TemporaryFile file(document, "document.xml");
    return fitsTheSchema(file.path());
}

class SampleDocumentsTest : public HomeBankingFixture<ImportHomeBankingData> {};

TEST_F(SampleDocumentsTest, FitTheSchema) {
    for (const char* sample : {"kontoliste.xml", "buchungsliste.xml"}) {
        const TemporaryFile copy(contentOf(kRoot + "/data/" + sample), sample); // the log goes beside it
        EXPECT_TRUE(fitsTheSchema(copy.path())) << sample;
    }
}

TEST_F(SampleDocumentsTest, AreImported) {
    XmlImportData data;
    data.setImportTargetNode(m_model.root());
    data.setXmlFileName((kRoot + "/data/kontoliste.xml").c_str());
    EXPECT_TRUE(m_door.updateAccountList(data)) << error();
    EXPECT_EQ(accounts(), 3);
    EXPECT_EQ(account("Bezeichnung"), "Girokonto Anna Grün"_latin1);
    EXPECT_EQ(m_model.text("HomeBankingImport/3/Bezeichnung"), "Haushalt & Garten");

    data.setXmlFileName((kRoot + "/data/buchungsliste.xml").c_str());
    EXPECT_TRUE(m_door.importAccountingEntries(data)) << error();
    EXPECT_EQ(bookings(), 3);
    EXPECT_EQ(account("DataSets/2/Empfaenger"), "Hausverwaltung Grün"_latin1);
    EXPECT_EQ(account("DataSets/2/Betrag"), "-620,00");
    EXPECT_EQ(account("DataSets/3/BuchungsDatum"), "16.03.2026");
    EXPECT_EQ(account("LetzteBuchungsId"), "2026-03-003");
}

TEST_F(SampleDocumentsTest, ExamplesOfTheDescriptionFitTheSchemaAndAreImported) {
    const std::vector<std::string> documents = examples();
    ASSERT_EQ(documents.size(), 2U);
    for (const std::string& document : documents)
        EXPECT_TRUE(documentFitsTheSchema(document)) << document;
    EXPECT_TRUE(updateAccounts(documents[0])) << error();
    EXPECT_TRUE(importBookings(documents[1])) << error();
    EXPECT_EQ(account("DataSets/1/Betrag"), "1.850,00");
}

TEST_F(SampleDocumentsTest, DescriptionNamesEveryText) {
    const std::string description = contentOf(kDescription);
    for (const char* text :
         {"Die Importdatei konnte nicht geöffnet werden.", "Keine Daten vorhanden", "Die XML-Datei ist ungültig.",
          "Die XML-Datei hat eine Keine Versionsnummer.", "Die XML-Datei hat eine unbekannte Versionsnummer.",
          "Keine Konten vorhanden.", "Unbekanntes Konto."})
        EXPECT_NE(description.find("`" + std::string(text) + "`"), std::string::npos) << text;
}

struct SchemaCase {
    std::string document;
    bool fits;
    const char* why;
};

std::string bookingWith(const std::string& element) {
    return HomeBankingXml::buchungsliste("<buchung>" + element + "</buchung>");
}

TEST_F(SampleDocumentsTest, SchemaTellsWhatASenderShouldWrite) {
    using namespace HomeBankingXml;
    const std::string good = konto("1", "2", "Name");
    const SchemaCase cases[] = {
        {kontoliste(good), true, "an account list"},
        {kontoliste("<konto><ktonr>2</ktonr><blz>1</blz></konto>"), true, "any order, and no name"},
        {document("<kontoliste>" + good + "</kontoliste>", "1.7"), true, "minor versions are free"},
        {document("<kontoliste>" + good + "</kontoliste>", "1"), false, "a version needs its point"},
        {document("<kontoliste>" + good + "</kontoliste>", "2.0"), false, "and 1 before it"},
        {kontoliste(""), false, "a list without accounts fails"},
        {kontoliste(good + "<depot/>"), false, "a stranger ends the list"},
        {kontoliste(konto("", "2", "Name")), false, "an account without bank code takes no bookings"},
        {kontoliste(konto("1", " 2", "Name")), false, "blanks count when accounts are compared"},
        {kontoliste(konto("1", "2", "5 €")), false, "would become a question mark"},
        {document(""), false, "no list"},
        {document("<kontoliste>" + good + "</kontoliste><buchungsliste blz='1' ktonr='2'/>"), false, "one list each"},
        {buchungsliste(""), true, "a list without bookings"},
        {document("<buchungsliste blz='1'/>"), false, "both attributes are needed"},
        {document("<buchungsliste><blz>1</blz><ktonr>2</ktonr></buchungsliste>"), false, "as attributes"},
        {bookingWith(""), true, "every element may be missing"},
        {bookingWith("<betrag/><datum/><steuerrelevant/><notiz/>"), true, "or empty, in any order"},
        {bookingWith("<id>1</id><id>2</id>"), false, "each but once"},
        {bookingWith("<iban>DE</iban>"), false, "no others"},
        {bookingWith("<datum>1.2.2026</datum>"), true, "a date"},
        {bookingWith("<datum>2026-02-01</datum>"), false, "the year comes last"},
        {bookingWith("<datum>02/31/2026</datum>"), false, "the day comes first"},
        {bookingWith("<betrag>-1.234,56</betrag>"), true, "an amount"},
        {bookingWith("<betrag>1234,56</betrag>"), true, "without dots"},
        {bookingWith("<betrag>1.234</betrag>"), false, "would be one and a bit"},
        {bookingWith("<betrag>12,50-</betrag>"), false, "would lose its minus"},
        {bookingWith("<steuerrelevant>0</steuerrelevant>"), true, "no"},
        {bookingWith("<steuerrelevant>true</steuerrelevant>"), false, "would be no"},
    };
    for (const SchemaCase& test : cases)
        EXPECT_EQ(documentFitsTheSchema(test.document), test.fits) << test.why << "\n" << test.document;
}

} // namespace
