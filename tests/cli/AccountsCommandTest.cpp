// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingFixture.h"

namespace {

using HomeBankingTexts::account;
using HomeBankingTexts::accountList;
using ::testing::ElementsAre;

using AccountsCommandTest = HomeBankingCommandTest;

TEST_F(AccountsCommandTest, AccountsReachTheStore) {
    write("konten.xml", accountList(account("100", "0815", "Giro") + "\n" + account("100", "0816", "Müller")));
    EXPECT_EQ(call("accounts", {"konten.xml"}, 0), Json::parse(R"({"files":[
        {"file":"konten.xml","result":true,"importedCount":2,"refusedCount":0,"undatedCount":0,"errorText":"",
         "committed":true,"accounts":2,
         "lines":{"read":8,"records":2,"header":0,"preamble":3,"footer":2,"blank":1,"ignored":0},
         "records":{"found":2,"imported":2,"refused":0},"messages":[]}]})"));
    EXPECT_EQ(show("accounts"), Json::parse(R"([
        {"BLZ":"100","KtoNummer":"0815","Bezeichnung":"Giro","ImportTyp":6,"ExistsInHB":true,
         "LetztesImportDatum":null,"LetzteBuchungsId":"","NeueBuchungen":null},
        {"BLZ":"100","KtoNummer":"0816","Bezeichnung":"Müller","ImportTyp":6,"ExistsInHB":true,
         "LetztesImportDatum":null,"LetzteBuchungsId":"","NeueBuchungen":null}])"));
}

TEST_F(AccountsCommandTest, KeysStandInTheirOrder) {
    write("konten.xml", accountList(account("100", "0815", "Giro")));
    const Json file = accounts({"konten.xml"}, 0);
    std::vector<std::string> keys;
    for (const auto& [key, value] : file.items())
        keys.push_back(key);
    EXPECT_THAT(keys, ElementsAre("file", "result", "importedCount", "refusedCount", "undatedCount", "errorText",
                                  "committed", "accounts", "lines", "records", "messages"));
}

TEST_F(AccountsCommandTest, SecondListRenamesAndMarksWhatIsGone) {
    write("a.xml", accountList(account("100", "0815", "Giro") + account("100", "0816", "Spar")));
    write("b.xml", accountList(account("100", "0816", "Tagesgeld") + account("100", "0817", "Depot")));
    accounts({"a.xml"}, 0);
    const Json file = accounts({"b.xml"}, 0);
    EXPECT_EQ(file.at("accounts"), 2) << "those that the list names";
    EXPECT_THAT(column("accounts", "Bezeichnung"), ElementsAre("Giro", "Tagesgeld", "Depot"));
    EXPECT_THAT(column("accounts", "ExistsInHB"), ElementsAre("false", "true", "true"));

    EXPECT_EQ(accounts({"b.xml"}, 0), file) << "a list may be read again";
    EXPECT_EQ(show("accounts").size(), 3U);
}

TEST_F(AccountsCommandTest, AccountNamedTwiceIsOneAccount) {
    write("a.xml", accountList(account("100", "0815", "Giro") + account("100", "0815", "Girokonto")));
    const Json file = accounts({"a.xml"}, 0);
    EXPECT_EQ(file.at("accounts"), 1);
    EXPECT_EQ(records(file), "2 2 0");
    EXPECT_THAT(column("accounts", "Bezeichnung"), ElementsAre("Girokonto"));
}

TEST_F(AccountsCommandTest, EmptyListFailsAndLeavesTheStoreAsItWas) {
    makeAccount();
    const Json before = dump();
    write("leer.xml", accountList(""));
    const Json file = accounts({"leer.xml"}, 1);
    EXPECT_EQ(file.at("result"), false);
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(file.at("accounts"), 0);
    EXPECT_EQ(file.at("errorText"), "Keine Konten vorhanden.");
    EXPECT_EQ(messages(file), "accounts-missing:-");
    EXPECT_EQ(dump(), before) << "the library alone would have marked all accounts as gone";
}

TEST_F(AccountsCommandTest, AccountsBehindACommentAreRefusedAndTold) {
    write("a.xml", accountList(account("100", "1", "A") + "<!-- neu -->\n" + account("100", "2", "B") +
                               account("100", "3", "C")));
    const Json file = accounts({"a.xml"}, 1);
    EXPECT_EQ(file.at("result"), true) << "the library takes what stands before it";
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(records(file), "3 1 2");
    EXPECT_EQ(file.at("refusedCount"), 2);
    EXPECT_EQ(messages(file), "list-ended:5");
    const std::string text = file.at("messages").at(0).at("text");
    EXPECT_THAT(text, Says("Hinter Konto 1 steht ein Kommentar"));
    EXPECT_THAT(column("accounts", "KtoNummer"), ElementsAre("1"));
}

TEST_F(AccountsCommandTest, CommentBehindTheLastAccountDoesNoHarm) {
    write("a.xml", accountList(account("100", "1", "A") + "<!-- Ende -->\n"));
    EXPECT_EQ(messages(accounts({"a.xml"}, 0)), "");
}

TEST_F(AccountsCommandTest, ForeignElementIsNamed) {
    write("a.xml", accountList(account("100", "1", "A") + "<Konto><blz>100</blz></Konto>\n"));
    const Json file = accounts({"a.xml"}, 1);
    EXPECT_EQ(messages(file), "list-ended:5");
    EXPECT_THAT(file.at("messages").at(0).at("text").get<std::string>(), Says("das Element „Konto“"));

    write("b.xml", accountList("Konten:" + account("100", "1", "A")));
    const Json text = accounts({"b.xml"}, 1);
    EXPECT_EQ(messages(text), "list-ended:4");
    EXPECT_THAT(text.at("messages").at(0).at("text").get<std::string>(), Says("Am Anfang der Liste steht ein Text"));
    EXPECT_EQ(records(text), "1 0 1");
}

TEST_F(AccountsCommandTest, BookingListIsNoAccountList) {
    write("b.xml", HomeBankingTexts::bookingList(HomeBankingTexts::booking("1", "01.02.2004", "1,00")));
    const Json file = accounts({"b.xml"}, 1);
    EXPECT_EQ(messages(file), "list-missing:-");
    EXPECT_EQ(file.at("errorText"), "");
    EXPECT_THAT(file.at("messages").at(0).at("text").get<std::string>(), Says("kontoliste"));
}

TEST_F(AccountsCommandTest, AccountsWithoutRoomAreCounted) {
    std::string many;
    for (int i = 1; i <= 65536; ++i)
        many += "<konto><ktonr>" + std::to_string(i) + "</ktonr></konto>\n";
    write("viele.xml", accountList(many));
    const Json file = accounts({"viele.xml"}, 1);
    EXPECT_EQ(messages(file), "accounts-full:-");
    EXPECT_EQ(records(file), "65536 65535 1");
    EXPECT_EQ(file.at("committed"), false) << "all or nothing";
    EXPECT_FALSE(exists(kStore));
}

TEST_F(AccountsCommandTest, TakesOneFile) {
    EXPECT_EQ(run({"accounts", "--store", kStore}).status, 2);
    const Result result = run({"accounts", "a.xml", "b.xml", "--store", kStore});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.messages, Says("b.xml"));
    EXPECT_EQ(run({"accounts", "a.xml", "--keep-partial", "--store", kStore}).status, 2);
}

TEST_F(AccountsCommandTest, SummaryIsForPeople) {
    write("a.xml", accountList(account("100", "1", "A")));
    EXPECT_EQ(run({"accounts", "a.xml", "--store", kStore}).output, "a.xml: 1 Konto abgeglichen.\n");
    EXPECT_EQ(run({"accounts", "a.xml", "--store", kStore, "--quiet"}).output, "");
    write("leer.xml", accountList(""));
    const Result result = run({"accounts", "leer.xml", "--store", kStore});
    EXPECT_EQ(result.output, "leer.xml: nicht übernommen; der Bestand ist unverändert.\n");
    EXPECT_THAT(result.messages, Says("leer.xml: Fehler: Die Kontenliste nennt kein Konto. [accounts-missing]"));
}

TEST_F(AccountsCommandTest, StoreThatIsNoneIsTold) {
    write(kStore, "kein Bestand, sondern ein Text, und zwar ein etwas laengerer");
    write("a.xml", accountList(account("100", "1", "A")));
    const Json document = call("accounts", {"a.xml"}, 3);
    EXPECT_EQ(document.at("error").at("code"), "store-not-a-store");
    EXPECT_EQ(document.at("files").at(0).at("committed"), false);
}

TEST_F(AccountsCommandTest, DocumentThatDeclaresEntitiesIsRead) {
    write("a.xml", "<!DOCTYPE HomeBanking [<!ENTITY k \"Giro\">]>\n<HomeBanking version=\"1.0\"><kontoliste>" +
                       account("100", "1", "&k;") + "</kontoliste></HomeBanking>");
    const Json file = accounts({"a.xml"}, 0);
    EXPECT_EQ(file.at("accounts"), 1);
    EXPECT_EQ(records(file), "1 1 0");
    EXPECT_THAT(column("accounts", "Bezeichnung"), ElementsAre("Giro"));
}

} // namespace
