// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <QtXml/QDomDocument>

#include "framework/Latin1.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/XmlNames.h"
#include "support/TemporaryFile.h"

namespace {

using namespace HomeBankingXml;

constexpr const char* kCannotOpen = "Die Importdatei konnte nicht geöffnet werden."_latin1;
constexpr const char* kNoData = "Keine Daten vorhanden";
constexpr const char* kNoVersion = "Die XML-Datei hat eine Keine Versionsnummer.";
constexpr const char* kUnknownVersion = "Die XML-Datei hat eine unbekannte Versionsnummer.";

const std::string kOneAccount = kontoliste(konto("10020030", "123456789", "Haushalt"));

class ReadingTest : public HomeBankingFixture<BankingXML> {
protected:
    /// The error text is the fixed line, a line break, and something of the parser's.
    void expectNotXml() const {
        EXPECT_EQ(error().substr(0, std::string(kNotXml).size()), kNotXml);
        EXPECT_GT(error().size(), std::string(kNotXml).size());
    }
};

TEST_F(ReadingTest, ReadsABuffer) {
    EXPECT_TRUE(updateAccounts(kOneAccount));
    EXPECT_EQ(account("Bezeichnung"), "Haushalt");
    EXPECT_EQ(error(), "");
}

TEST_F(ReadingTest, ReadsAFile) {
    const TemporaryFile file(kOneAccount, "konten.xml");
    XmlImportData data;
    data.setImportTargetNode(m_model.root());
    data.setXmlFileName(file.path());
    EXPECT_TRUE(m_door.updateAccountList(data));
    EXPECT_EQ(account("Bezeichnung"), "Haushalt");
}

TEST_F(ReadingTest, LastSourceSetIsRead) {
    const TemporaryFile file(kontoliste(konto("10020030", "123456789", "aus der Datei")), "konten.xml");
    XmlImportData data;
    data.setImportTargetNode(m_model.root());
    data.setXmlFileName(file.path());
    data.setXmlContent(kOneAccount.data(), kOneAccount.size());
    EXPECT_TRUE(m_door.updateAccountList(data));
    EXPECT_EQ(account("Bezeichnung"), "Haushalt");

    data.setXmlFileName(file.path());
    EXPECT_TRUE(m_door.updateAccountList(data));
    EXPECT_EQ(account("Bezeichnung"), "aus der Datei");
}

TEST_F(ReadingTest, FileThatCannotBeOpened) {
    const TemporaryFolder folder;
    for (const std::string& name : {(folder.path() / "fehlt.xml").string(), folder.path().string()}) {
        BankingXML banking;
        XmlImportData data;
        data.setImportTargetNode(m_model.root());
        data.setXmlFileName(name.c_str());
        EXPECT_FALSE(banking.updateAccountList(data)) << name;
        EXPECT_STREQ(banking.getErrorMsg(), kCannotOpen) << name;
    }
}

TEST_F(ReadingTest, NeitherFileNorBuffer) {
    XmlImportData data;
    data.setImportTargetNode(m_model.root());
    EXPECT_FALSE(m_door.updateAccountList(data));
    EXPECT_EQ(error(), kNoData);
    EXPECT_FALSE(m_door.importAccountingEntries(data));
    EXPECT_EQ(error(), kNoData);
}

TEST_F(ReadingTest, BytesBeyondTheBufferSizeAreNotRead) {
    const std::string more = kOneAccount + "<noch mehr";
    XmlImportData data = input(more);
    data.setXmlContent(more.data(), kOneAccount.size());
    EXPECT_TRUE(m_door.updateAccountList(data));
}

TEST_F(ReadingTest, EmptyInputsAreNoXml) {
    const TemporaryFile file("", "leer.xml");
    XmlImportData data;
    data.setImportTargetNode(m_model.root());
    data.setXmlFileName(file.path());
    EXPECT_FALSE(m_door.updateAccountList(data));
    expectNotXml();

    data.setXmlContent("", 0); // a buffer without bytes is data
    EXPECT_FALSE(m_door.updateAccountList(data));
    expectNotXml();
}

TEST_F(ReadingTest, NotWellFormed) {
    const char* const documents[] = {"Konto;Betrag\n1;2\n", "<HomeBanking version=\"1.0\">",
                                     "<HomeBanking version=\"1.0\"><kontoliste></konto></HomeBanking>",
                                     "<HomeBanking version=1.0/>", "<HomeBanking version=\"1.0\"/><HomeBanking/>"};
    for (const char* document : documents) {
        SCOPED_TRACE(document);
        EXPECT_FALSE(updateAccounts(document));
        expectNotXml();
        EXPECT_FALSE(importBookings(document));
        expectNotXml();
    }
}

TEST_F(ReadingTest, ParsersOwnMessageFollowsTheLineBreak) {
    const QByteArray bytes = "<HomeBanking version=\"1.0\"></homebanking>";
    QDomDocument plain;
    QString message;
    ASSERT_FALSE(plain.setContent(bytes, true, &message));
    QDomDocument document;
    EXPECT_FALSE(m_door.initXmldocument(document, bytes));
    EXPECT_EQ(error(), kNotXml + message.toStdString());
}

struct VersionCase {
    const char* root; ///< the root's start tag up to its end
    const char* error;
    const char* why;
};

constexpr VersionCase kVersions[] = {
    {"HomeBanking version=\"1.0\"", "", "the version"},
    {"HomeBanking version=\"1.7\"", "", "only the major number counts"},
    {"HomeBanking version=\"1.\"", "", "nothing need follow the point"},
    {"HomeBanking version=\"1.1.2\"", "", "up to the first point"},
    {"HomeBanking version=\"01.x\"", "", "a number, and what follows is not read"},
    {"HomeBanking version=\" 1.0\"", "", "blanks around a number do not count"},
    {"HomeBanking version=\"1\"", kNoVersion, "a point is asked for"},
    {"HomeBanking version=\"\"", kNoVersion, "empty"},
    {"HomeBanking version=\"eins\"", kNoVersion, "no number and no point"},
    {"HomeBanking", kNoVersion, "no attribute"},
    {"HomeBanking Version=\"1.0\"", kNoVersion, "names are read with regard to case"},
    {"Homebanking", kNoVersion, "the version is examined before the name"},
    {"HomeBanking version=\"2.0\"", kUnknownVersion, "another version"},
    {"HomeBanking version=\"11.0\"", kUnknownVersion, "the whole number counts"},
    {"HomeBanking version=\"-1.0\"", kUnknownVersion, "sign included"},
    {"HomeBanking version=\".1\"", kUnknownVersion, "no text before the point is 0"},
    {"HomeBanking version=\"eins.0\"", kUnknownVersion, "what is no number is 0"},
    {"HomeBanking version=\"1,0.0\"", kUnknownVersion, "a comma is no part of a number"},
    {"Homebanking version=\"1.0\"", kUnknownVersion, "a wrong name is told as an unknown version"},
    {"Bank version=\"2.0\"", kUnknownVersion, "wrong version and wrong name"},
    {"hb:HomeBanking xmlns:hb=\"urn:x\" version=\"1.0\"", "", "the local name of the root counts"},
    {"HomeBanking:hb xmlns:HomeBanking=\"urn:x\" version=\"1.0\"", kUnknownVersion, "the prefix does not"},
};

TEST_F(ReadingTest, VersionAndNameOfTheRoot) {
    for (const VersionCase& test : kVersions) {
        SCOPED_TRACE(std::string(test.root) + ": " + test.why);
        const std::string root(test.root);
        const std::string name = root.substr(0, root.find(' '));
        const std::string accounts =
            "<" + root + "><kontoliste>" + konto("10020030", "123456789", "x") + "</kontoliste></" + name + ">";
        const std::string bookings = "<" + root + "><buchungsliste/></" + name + ">";
        BankingXML banking;
        EXPECT_EQ(banking.updateAccountList(input(accounts)), *test.error == '\0');
        EXPECT_STREQ(banking.getErrorMsg(), test.error);
        BankingXML other;
        EXPECT_EQ(other.importAccountingEntries(input(bookings)), *test.error == '\0');
        EXPECT_STREQ(other.getErrorMsg(), test.error);
    }
}

TEST_F(ReadingTest, WhatStandsBeforeTheListIsSkipped) {
    const std::string list = "<kontoliste>" + konto("10020030", "123456789", "Haushalt") + "</kontoliste>";
    EXPECT_TRUE(updateAccounts(document("<!-- c --><absender>Bank</absender><?pi x?>Text" + list)));
    EXPECT_EQ(account("Bezeichnung"), "Haushalt");
}

TEST_F(ReadingTest, FirstOfSeveralListsCounts) {
    EXPECT_TRUE(
        updateAccounts(document("<kontoliste>" + konto("10020030", "123456789", "erste") + "</kontoliste><kontoliste>" +
                                konto("10020030", "123456789", "zweite") + "</kontoliste>")));
    EXPECT_EQ(account("Bezeichnung"), "erste");
}

TEST_F(ReadingTest, ListMayHaveAPrefix) {
    EXPECT_TRUE(updateAccounts("<h:HomeBanking xmlns:h=\"urn:x\" version=\"1.0\"><h:kontoliste>" +
                               konto("10020030", "123456789", "Haushalt") + "</h:kontoliste></h:HomeBanking>"));
}

TEST_F(ReadingTest, MissingListFailsWithoutAText) {
    EXPECT_FALSE(updateAccounts(document("<buchungsliste/>")));
    EXPECT_FALSE(importBookings(document("<kontoliste/>")));
    EXPECT_FALSE(updateAccounts(document("<x><kontoliste/></x>"))); // not a child of the root
    EXPECT_EQ(error(), "");

    ASSERT_FALSE(updateAccounts(document("", "2.0")));
    EXPECT_FALSE(updateAccounts(document("")));
    EXPECT_EQ(error(), kUnknownVersion) << "the text before stays";
}

TEST_F(ReadingTest, UnknownDocumentTypeFailsWithoutAText) {
    for (const int type : {-1, 2, 99}) {
        EXPECT_FALSE(m_door.openFileAndParseXml(input(kOneAccount), static_cast<BankingXML::XmlDataType>(type)));
        EXPECT_EQ(error(), "");
    }
    EXPECT_EQ(account("Bezeichnung"), "Girokonto");
}

TEST_F(ReadingTest, DocumentTypesHaveFixedNumbers) {
    EXPECT_EQ(static_cast<int>(BankingXML::AccountList), 0);
    EXPECT_EQ(static_cast<int>(BankingXML::AccountingEntries), 1);
}

TEST_F(ReadingTest, SuccessLeavesTheErrorText) {
    ASSERT_FALSE(updateAccounts("kein XML"));
    const std::string before = error();
    EXPECT_TRUE(updateAccounts(kOneAccount));
    EXPECT_EQ(error(), before);
}

TEST_F(ReadingTest, ListWithoutAccounts) {
    EXPECT_FALSE(updateAccounts(kontoliste("")));
    EXPECT_EQ(error(), kNoAccounts);
}

TEST_F(ReadingTest, NothingIsWrittenBeforeTheListIsFound) {
    const std::string list = "<kontoliste/><buchungsliste blz=\"10020030\" ktonr=\"123456789\"/>";
    for (const std::string& unreadable : {document(list, "2.0"), document(list) + "<", document("<x/>")}) {
        EXPECT_FALSE(updateAccounts(unreadable));
        EXPECT_FALSE(importBookings(unreadable));
        EXPECT_EQ(account("ExistsInHB"), "Ja") << unreadable;
    }
}

TEST_F(ReadingTest, TargetIsTakenFromEveryInput) {
    const FinanceModel other;
    EXPECT_TRUE(updateAccounts(kOneAccount));
    EXPECT_TRUE(m_door.updateAccountList(input(kOneAccount, other)));
    EXPECT_EQ(other.rows("HomeBankingImport"), 1);
    EXPECT_EQ(other.text("HomeBankingImport/1/Bezeichnung"), "Haushalt");
}

TEST_F(ReadingTest, BufferLargerThanAnIntCountsIsRefusedUnread) {
    for (const unsigned long size : {static_cast<unsigned long>(INT_MAX), INT_MAX + 1UL, ULONG_MAX}) {
        XmlImportData data;
        data.setImportTargetNode(m_model.root());
        data.setXmlContent("<a/>", size);
        EXPECT_FALSE(m_door.updateAccountList(data));
        EXPECT_EQ(error(), kNotXml + std::string("Die Daten sind größer als 2 GB. "
                                                 "Bitte auf mehrere Dateien verteilen."_latin1));
    }
}

TEST_F(ReadingTest, FileLargerThanAnIntCountsIsRefusedUnread) {
    const TemporaryFile file("<a/>", "riesig.xml");
    std::filesystem::resize_file(file.path(), 5UL << 30U); // takes no room on the disk
    XmlImportData data;
    data.setImportTargetNode(m_model.root());
    data.setXmlFileName(file.path());
    EXPECT_FALSE(m_door.importAccountingEntries(data));
    expectNotXml();
    EXPECT_NE(error().find("2 GB"), std::string::npos);
}

class ChildValueTest : public testing::Test {
protected:
    QString valueIn(const char* inside) {
        const QByteArray bytes = QByteArray("<konto>") + inside + "</konto>";
        EXPECT_TRUE(m_document.setContent(bytes, true)) << inside;
        return BankingXML().getSafeChildValue(m_document.documentElement(), "blz");
    }
    QDomDocument m_document;
};

TEST_F(ChildValueTest, TextOfTheFirstChildOfThatName) {
    struct {
        const char* inside;
        const char* value;
        const char* why;
    } const kCases[] = {
        {"<blz>1</blz>", "1", "plain"},
        {"<ktonr>9</ktonr><!-- c --><blz>1</blz><blz>2</blz>", "1", "the first one, behind others"},
        {"<x><blz>1</blz></x>", "", "only children count"},
        {"<BLZ>1</BLZ>", "", "with regard to case"},
        {"", "", "absent"},
        {"<blz/>", "", "empty"},
        {"<blz> \n\t </blz>", "", "blanks alone are dropped when the tree is built"},
        {"<blz> 1 </blz>", " 1 ", "beside a text they are kept"},
        {"<blz>1<!-- c -->2<?p i?>3</blz>", "123", "comments and instructions are no text"},
        {"<blz>1<b>2</b><![CDATA[<3>]]></blz>", "12<3>", "elements inside and CDATA are"},
        {"<blz>&lt;&#49;&amp;</blz>", "<1&", "references"},
        {"<x:blz xmlns:x='urn:x'>1</x:blz>", "1", "a prefix is no part of the name"},
    };
    for (const auto& test : kCases)
        EXPECT_EQ(valueIn(test.inside).toStdString(), test.value) << test.inside << ": " << test.why;
}

TEST_F(ChildValueTest, NullNodeHasNone) { EXPECT_TRUE(BankingXML().getSafeChildValue(QDomNode(), "blz").isEmpty()); }

/// Points a name at another text for one test.
class OtherName {
public:
    OtherName(const char*& name, const char* text) : m_name(name), m_before(name) { m_name = text; }
    ~OtherName() { m_name = m_before; }
    OtherName(const OtherName&) = delete;
    OtherName& operator=(const OtherName&) = delete;

private:
    const char*& m_name;
    const char* m_before;
};

TEST(XmlNamesTest, HaveTheirTexts) {
    struct {
        const char* name;
        const char* text;
    } const kNames[] = {
        {g_tagHomeBanking, "HomeBanking"},
        {g_AttVersion, "version"},
        {g_tagKontoliste, "kontoliste"},
        {g_tagKonto, "konto"},
        {g_tagBLZ, "blz"},
        {g_tagKtonr, "ktonr"},
        {g_tagBezeichnung, "bezeichnung"},
        {g_tagBuchungsliste, "buchungsliste"},
        {g_AttBLZ, "blz"},
        {g_AttKtoNr, "ktonr"},
        {g_tagBuchung, "buchung"},
        {g_tagID, "id"},
        {g_tagDatum, "datum"},
        {g_tagValuta, "valuta"},
        {g_tagGvcode, "gvcode"},
        {g_tagBetrag, "betrag"},
        {g_tagVerwendungszweck, "verwendungszweck"},
        {g_tagSteuerrelevant, "steuerrelevant"},
        {g_tagEmpfaenger, "empfaenger"},
        {g_tagNotiz, "notiz"},
        {g_tagKategorie, "kategorie"},
    };
    for (const auto& name : kNames)
        EXPECT_STREQ(name.name, name.text);
}

TEST_F(ReadingTest, NamesAreLookedUpThroughTheirVariables) {
    const OtherName root(g_tagHomeBanking, "Bank");
    const OtherName version(g_AttVersion, "v");
    const OtherName accountList(g_tagKontoliste, "konten");
    const OtherName konto(g_tagKonto, "k");
    const OtherName blz(g_tagBLZ, "b");
    const OtherName ktonr(g_tagKtonr, "n");
    const OtherName name(g_tagBezeichnung, "t");
    EXPECT_TRUE(
        updateAccounts("<Bank v=\"1.0\"><konten><k><b>10020030</b><n>123456789</n><t>neu</t></k></konten></Bank>"));
    EXPECT_EQ(account("Bezeichnung"), "neu");

    const OtherName bookingList(g_tagBuchungsliste, "liste");
    const OtherName listBlz(g_AttBLZ, "bank");
    const OtherName listKtonr(g_AttKtoNr, "konto");
    const OtherName booking(g_tagBuchung, "bu");
    const OtherName id(g_tagID, "i");
    const OtherName amount(g_tagBetrag, "eur");
    EXPECT_TRUE(importBookings("<Bank v=\"1.0\"><liste bank=\"10020030\" konto=\"123456789\">"
                               "<bu><i>7</i><eur>2,50</eur></bu></liste></Bank>"));
    EXPECT_EQ(account("DataSets/1/BuchungsID"), "7");
    EXPECT_EQ(account("DataSets/1/Betrag"), "2,50");
}

} // namespace
