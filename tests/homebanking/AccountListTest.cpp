// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>
#include <QtXml/QDomDocument>

#include "framework/Latin1.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/QtParser.h"

namespace {

using namespace HomeBankingXml;

/// The model starts with three accounts, all marked as present.
class AccountListTest : public HomeBankingFixture<BankingXML> {
protected:
    AccountListTest() {
        addAccount(m_model, "100", "42", "Sparbuch");
        addAccount(m_model, "20020020", "77", "Depot");
    }

    bool updateWith(const std::string& inside) { return updateAccounts(kontoliste(inside)); }
    std::string field(int row, const char* name) const {
        return m_model.text("HomeBankingImport/" + std::to_string(row) + "/" + name);
    }
    /// "Ja" and "Nein" of all rows in order.
    std::string marks() const {
        std::string all;
        for (int row = 1; row <= accounts(); ++row)
            all += field(row, "ExistsInHB") + " ";
        return all;
    }
};

TEST_F(AccountListTest, KnownAccountIsRenamedAndMarkedAsPresent) {
    EXPECT_TRUE(updateWith(konto("100", "42", "Tagesgeld")));
    EXPECT_EQ(accounts(), 3);
    EXPECT_EQ(field(2, "Bezeichnung"), "Tagesgeld");
    EXPECT_EQ(field(2, "ExistsInHB"), "Ja");
    EXPECT_EQ(error(), "");
}

TEST_F(AccountListTest, AccountsNoLongerListedStayAndAreMarkedAsAbsent) {
    EXPECT_TRUE(updateWith(konto("100", "42", "Sparbuch")));
    EXPECT_EQ(marks(), "Nein Ja Nein ");
    EXPECT_EQ(field(1, "Bezeichnung"), "Girokonto");

    EXPECT_TRUE(updateWith(konto("10020030", "123456789", "Girokonto")));
    EXPECT_EQ(marks(), "Ja Nein Nein ");
}

TEST_F(AccountListTest, NewAccountGetsTheNextRow) {
    EXPECT_TRUE(updateWith(konto("30030030", "5", "Kreditkarte")));
    ASSERT_EQ(accounts(), 4);
    EXPECT_EQ(field(4, "BLZ"), "30030030");
    EXPECT_EQ(field(4, "KtoNummer"), "5");
    EXPECT_EQ(field(4, "Bezeichnung"), "Kreditkarte");
    EXPECT_EQ(field(4, "ExistsInHB"), "Ja");
    EXPECT_EQ(field(4, "ImportTyp"), "6");
    for (const char* untouched : {"LetztesImportDatum", "LetzteBuchungsId", "NeueBuchungen"})
        EXPECT_EQ(m_model.kind(std::string("HomeBankingImport/4/") + untouched), DataType::eEmpty) << untouched;
    EXPECT_EQ(m_model.rows("HomeBankingImport/4/DataSets"), 0);
}

TEST_F(AccountListTest, KnownAccountKeepsItsImportType) {
    m_model.set("HomeBankingImport/2/ImportTyp", DataType::makeInteger(3));
    EXPECT_TRUE(updateWith(konto("100", "42", "Sparbuch")));
    EXPECT_EQ(field(2, "ImportTyp"), "3");
}

TEST_F(AccountListTest, AccountsAreComparedByteForByte) {
    const struct {
        const char* blz;
        const char* ktonr;
        const char* why;
    } kOthers[] = {
        {"0100", "42", "no number: a leading zero counts"},
        {"100", "042", "of the account, too"},
        {"100 ", "42", "blanks count"},
        {"100", "77", "both must fit"},
        {"20020020", "42", "in the same row"},
        {"", "42", "empty fits empty alone"},
    };
    int expected = 3;
    for (const auto& other : kOthers) {
        EXPECT_TRUE(updateWith(konto(other.blz, other.ktonr, "neu"))) << other.why;
        EXPECT_EQ(accounts(), ++expected) << other.why;
    }
    EXPECT_EQ(field(2, "Bezeichnung"), "Sparbuch");
}

TEST_F(AccountListTest, CaseCounts) {
    EXPECT_TRUE(updateWith(konto("abc", "1", "klein") + konto("ABC", "1", "gross")));
    EXPECT_EQ(field(4, "Bezeichnung"), "klein");
    EXPECT_EQ(field(5, "Bezeichnung"), "gross");
}

TEST_F(AccountListTest, LowestOfSeveralFittingRowsWins) {
    addAccount(m_model, "100", "42", "Doppel");
    EXPECT_TRUE(updateWith(konto("100", "42", "neu")));
    EXPECT_EQ(field(2, "Bezeichnung"), "neu");
    EXPECT_EQ(field(4, "Bezeichnung"), "Doppel");
    EXPECT_EQ(marks(), "Nein Ja Nein Nein ");
}

TEST_F(AccountListTest, SamePairTwiceInOneListIsOneAccount) {
    EXPECT_TRUE(updateWith(konto("500", "1", "erster") + konto("500", "1", "zweiter")));
    EXPECT_EQ(accounts(), 4);
    EXPECT_EQ(field(4, "Bezeichnung"), "zweiter");
}

TEST_F(AccountListTest, MissingOrEmptyNameBlanksTheStoredOne) {
    EXPECT_TRUE(updateWith("<konto><blz>100</blz><ktonr>42</ktonr></konto>" + konto("20020020", "77", "")));
    EXPECT_EQ(field(2, "Bezeichnung"), "");
    EXPECT_EQ(m_model.kind("HomeBankingImport/2/Bezeichnung"), DataType::eString);
    EXPECT_EQ(field(3, "Bezeichnung"), "");
}

TEST_F(AccountListTest, MissingBankCodeAndNumberAreEmptyTexts) {
    EXPECT_TRUE(updateWith("<konto/><konto><bezeichnung>auch ohne</bezeichnung></konto>"));
    ASSERT_EQ(accounts(), 4) << "the second one is found again";
    EXPECT_EQ(m_model.kind("HomeBankingImport/4/BLZ"), DataType::eString);
    EXPECT_EQ(field(4, "BLZ"), "");
    EXPECT_EQ(field(4, "Bezeichnung"), "auch ohne");
}

TEST_F(AccountListTest, OrderOfTheChildrenAndStrangersAmongThemDoNotMatter) {
    EXPECT_TRUE(updateWith("<konto waehrung=\"EUR\"><bezeichnung>neu</bezeichnung><!-- c --><iban>DE</iban>Text"
                           "<ktonr>42</ktonr><blz>100</blz><blz>999</blz></konto>"));
    EXPECT_EQ(accounts(), 3);
    EXPECT_EQ(field(2, "Bezeichnung"), "neu");
}

TEST_F(AccountListTest, TextsAreStoredInLatin1) {
    EXPECT_TRUE(updateWith(konto("100", "42", "Geschäft € 🎉")));
    EXPECT_EQ(field(2, "Bezeichnung"), std::string("Geschäft ? ??"_latin1)) << "two halves of a pair, two marks";
    EXPECT_TRUE(updateWith(konto("Köln", "1", "a") + konto("Köln", "1", "b")));
    EXPECT_EQ(accounts(), 4);
    EXPECT_EQ(field(4, "BLZ"), "Köln"_latin1);
}

struct EndingCase {
    const char* stranger;
    const char* why;
};

constexpr EndingCase kEndings[] = {
    {"<!-- ein Kommentar -->", "a comment"},
    {"<depot/>", "another element"},
    {"<Konto/>", "case counts"},
    {"lose Worte", "a text"},
    {"<![CDATA[ ]]>", "a CDATA section"},
    {"<?pi x?>", "a processing instruction"},
    {"&unbekannt;", "an entity that nobody declared"},
    {"<h:konto xmlns:h=\"urn:x\"/>", "a prefix is part of the name here"},
};

TEST_F(AccountListTest, StrangerAmongTheAccountsEndsTheList) {
    for (const EndingCase& ending : kEndings) {
        SCOPED_TRACE(ending.why);
        const FinanceModel model;
        addAccount(model, "100", "42", "Sparbuch");
        BankingXML banking;
        const std::string list =
            kontoliste(konto("100", "42", "vorher") + ending.stranger + konto("500", "1", "danach"));
        EXPECT_TRUE(banking.updateAccountList(input(list, model))) << "one account was read";
        EXPECT_STREQ(banking.getErrorMsg(), "");
        EXPECT_EQ(model.text("HomeBankingImport/1/Bezeichnung"), "vorher");
        EXPECT_EQ(model.rows("HomeBankingImport"), 1);
    }
}

TEST_F(AccountListTest, BlanksBetweenTheAccountsDoNot) {
    EXPECT_TRUE(updateWith("\n  \t" + konto("100", "42", "a") + "\r\n\r\n" + konto("500", "1", "b") + "   "));
    EXPECT_EQ(accounts(), 4);
}

TEST_F(AccountListTest, ListThatStartsWithAStrangerLeavesEveryAccountAbsent) {
    for (const EndingCase& ending : kEndings) {
        EXPECT_FALSE(updateWith(ending.stranger + konto("100", "42", "neu"))) << ending.why;
        EXPECT_EQ(error(), kNoAccounts) << ending.why;
        EXPECT_EQ(marks(), "Nein Nein Nein ") << ending.why;
        EXPECT_EQ(field(2, "Bezeichnung"), "Sparbuch") << ending.why;
        m_model.set("HomeBankingImport/2/ExistsInHB", DataType::makeBoolean(true));
    }
}

TEST_F(AccountListTest, EmptyListLeavesEveryAccountAbsent) {
    for (const char* inside : {"", "\n  \n"}) {
        EXPECT_FALSE(updateWith(inside));
        EXPECT_EQ(error(), kNoAccounts);
        EXPECT_EQ(marks(), "Nein Nein Nein ");
    }
}

TEST_F(AccountListTest, NoAccountOfAnEarlierListIsCounted) {
    ASSERT_TRUE(updateWith(konto("100", "42", "a")));
    EXPECT_FALSE(updateWith(""));
    EXPECT_EQ(error(), kNoAccounts);
}

TEST_F(AccountListTest, ListNodeThatIsNullMarksAllAsAbsentAndIsNoFailure) {
    m_door.openFileAndParseXml(input(""), BankingXML::AccountList); // takes the target
    EXPECT_TRUE(m_door.importKonten(QDomElement()));
    EXPECT_EQ(marks(), "Nein Nein Nein ");
}

TEST_F(AccountListTest, SingleAccountCanBeImportedWithoutAList) {
    m_door.openFileAndParseXml(input(""), BankingXML::AccountList);
    QDomDocument document;
    document.setContent(QByteArray(konto("500", "1", "neu").c_str()), true);
    EXPECT_TRUE(m_door.importKonto(document.documentElement()));
    EXPECT_TRUE(m_door.importKonto(document.documentElement()));
    EXPECT_EQ(accounts(), 4);
    EXPECT_EQ(field(4, "Bezeichnung"), "neu");
    EXPECT_EQ(marks(), "Ja Ja Ja Ja ") << "only a list marks accounts as absent";
}

TEST_F(AccountListTest, AccountIsFoundByBothTexts) {
    m_door.openFileAndParseXml(input(""), BankingXML::AccountList);
    EXPECT_EQ(m_door.getAccount("100", "42"), m_model.node("HomeBankingImport/2"));
    EXPECT_EQ(m_door.getAccount("100", "43"), nullptr);
    EXPECT_EQ(m_door.getAccount("101", "42"), nullptr);
    EXPECT_EQ(m_door.getAccount("", ""), nullptr);
    addAccount(m_model, "100", "42", "Doppel");
    EXPECT_EQ(m_door.getAccount("100", "42"), m_model.node("HomeBankingImport/2")) << "the lowest row";
}

TEST_F(AccountListTest, FieldsThatHoldNoTextAreEmptyTexts) {
    dynamic_cast<NodeTable*>(m_model.node("HomeBankingImport"))->create(4); // a row of empty fields
    m_door.openFileAndParseXml(input(""), BankingXML::AccountList);
    EXPECT_EQ(m_door.getAccount("", ""), m_model.node("HomeBankingImport/4"));
    EXPECT_TRUE(updateWith("<konto><bezeichnung>ohne alles</bezeichnung></konto>"));
    EXPECT_EQ(accounts(), 4);
    EXPECT_EQ(field(4, "Bezeichnung"), "ohne alles");
}

TEST_F(AccountListTest, AccountsTableIsTheTargetsOwn) {
    EXPECT_EQ(m_door.getAccountsBaseNode(), nullptr) << "no target yet";
    m_door.openFileAndParseXml(input(""), BankingXML::AccountList);
    EXPECT_EQ(m_door.getAccountsBaseNode(), m_model.node("HomeBankingImport"));
}

TEST_F(AccountListTest, TextEndsAtAZeroByte) {
    const std::string list = konto("5&#0;1", "7&#0;", "vor&#0;nach") + konto("5", "7", "wieder");
    ASSERT_EQ(updateWith(list), QtParser::kReadsZeroCharacters);
    if (!QtParser::kReadsZeroCharacters)
        return;
    EXPECT_EQ(accounts(), 4);
    EXPECT_EQ(field(4, "BLZ"), "5");
    EXPECT_EQ(field(4, "Bezeichnung"), "wieder");
}

TEST_F(AccountListTest, AccountWithoutRoomIsSkippedAndTheListGoesOn) {
    auto* table = dynamic_cast<NodeTable*>(m_model.node("HomeBankingImport"));
    for (unsigned row = 4; row <= 65535; ++row)
        ASSERT_NE(table->create(static_cast<unsigned short>(row)), 0);
    EXPECT_TRUE(updateWith(konto("neu", "1", "kein Platz") + konto("100", "42", "Tagesgeld")));
    EXPECT_EQ(table->getNodeCount(), 65535);
    EXPECT_EQ(field(2, "Bezeichnung"), "Tagesgeld");
    EXPECT_EQ(field(65535, "ExistsInHB"), "Nein") << "the last row is marked, too";

    EXPECT_FALSE(updateWith(konto("neu", "1", "kein Platz")));
    EXPECT_EQ(error(), kNoAccounts) << "a skipped account is not counted";
}

TEST_F(AccountListTest, ThousandAccountsInAThousand) {
    std::string list;
    for (int i = 1000; i > 0; --i)
        list += konto("10020030", std::to_string(i), "Konto " + std::to_string(i));
    EXPECT_TRUE(updateWith(list));
    EXPECT_EQ(accounts(), 1003);
    EXPECT_TRUE(updateWith(list));
    EXPECT_EQ(accounts(), 1003);
    EXPECT_EQ(field(4, "Bezeichnung"), "Konto 1000");
    EXPECT_EQ(field(1003, "Bezeichnung"), "Konto 1");
}

} // namespace
