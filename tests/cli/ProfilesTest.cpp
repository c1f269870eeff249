// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <unistd.h>

#include "cli/DmimportFixture.h"

namespace {

/// The order of such a file's days and months cannot be known, nor its decimal mark.
class ProfilesTest : public DmimportTest {
protected:
    static constexpr const char* kFolder = "home/.config/dmimport/profiles/";

    ProfilesTest() {
        write("mai.csv", kHeader + "01/02/2004;A;-1.50\n03/04/2004;B;2.50\n");
        write("juni.csv", kHeader + "05/06/2004;C;-3.50\n");
        write("neu.csv", "Datum;Text;Betrag;Konto\n05/06/2004;C;-3.50;7\n");
    }

    Json save(const std::string& name = "bank") const {
        return import({"mai.csv", "--date-order", "mdy", "--save-profile", name}, 0);
    }
    Json profiles() const { return Json::parse(run({"profiles", "--json"}).output).at("profiles"); }

    const std::string kHeader = "Datum;Text;Betrag\n";
};

TEST_F(ProfilesTest, SavedProfileReadsTheNextFileOfThatBank) {
    EXPECT_EQ(messages(import({"juni.csv"}, 1)), "date-order-ambiguous:2");
    EXPECT_EQ(messages(save()), "profile-saved:-");
    const Json file = import({"juni.csv"}, 0);
    EXPECT_EQ(messages(file), "profile-used:-");
    EXPECT_EQ(show().back().at("Datum"), "2004-05-06");
}

TEST_F(ProfilesTest, ProfileIsTextThatAPersonCanEdit) {
    save();
    const std::string name = std::string(kFolder) + "bank.profil";
    std::string text = read(name);
    EXPECT_THAT(text, Says("\nheader-names = Datum | Text | Betrag\n"));
    EXPECT_THAT(text, Says("\nformat = csv\n"));
    EXPECT_THAT(text, Says("\ndelimiter = ;\n"));
    EXPECT_THAT(text, Says("\nheader = yes\n"));
    EXPECT_THAT(text, Says("\ndate-order = mdy\n"));
    EXPECT_THAT(text, Says("\ndecimal = .\n"));
    EXPECT_THAT(text, Says("\nheader = yes\n"));
    EXPECT_EQ(text.find("columns"), std::string::npos) << "found ones are found again";

    text.replace(text.find("mdy"), 3, "dmy");
    write(name, "\r\n  # anders\n" + text);
    import({"juni.csv"}, 0);
    EXPECT_EQ(show().back().at("Datum"), "2004-06-05");
}

TEST_F(ProfilesTest, ColumnsOfThePersonAreKept) {
    write("wirr.csv", "a;b;c\n13.02.2004;1,50;2,50\n14.02.2004;3,50;4,50\n");
    import({"wirr.csv", "--header", "--columns", "0=Datum,2=Betrag", "--save-profile", "wirr"}, 0);
    import({"wirr.csv"}, 0);
    EXPECT_EQ(show().at(2).at("Betrag"), 2.5);
    EXPECT_THAT(read(std::string(kFolder) + "wirr.profil"), Says("columns = 0=Datum,2=Betrag"));
}

TEST_F(ProfilesTest, OptionOverrulesTheProfile) {
    save();
    import({"juni.csv", "--date-order", "dmy"}, 0);
    EXPECT_EQ(show().back().at("Datum"), "2004-06-05");
}

TEST_F(ProfilesTest, ChangedLayoutIsToldAndNotRead) {
    save();
    const Json before = dump();
    const Json file = import({"neu.csv", "--date-order", "mdy"}, 1);
    EXPECT_EQ(messages(file), "profile-changed:-");
    EXPECT_THAT(file.at("messages").at(0).at("text").get<std::string>(), Says("neu sind „Konto“, es fehlen nichts"));
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(dump(), before);
    EXPECT_EQ(messages(import({"neu.csv", "--profile", "bank"}, 1)).substr(0, 15), "profile-changed");

    EXPECT_EQ(messages(import({"neu.csv", "--date-order", "mdy", "--save-profile", "bank"}, 0)), "profile-saved:-");
    EXPECT_EQ(import({"neu.csv"}, 0).at("importedCount"), 1);
}

TEST_F(ProfilesTest, FileOfAnotherBankIsNotTouchedByIt) {
    save();
    write("andere.csv", "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.02.2004;A;B;-1,50\n");
    EXPECT_EQ(messages(import({"andere.csv"}, 0)), "");
}

TEST_F(ProfilesTest, NamedProfileReadsAFileWithoutAHeader) {
    write("kopflos.csv", "01/02/2004;A;-1.50\n03/04/2004;B;2.50\n");
    import({"kopflos.csv", "--date-order", "mdy", "--save-profile", "ohne kopf"}, 0);
    EXPECT_EQ(messages(import({"kopflos.csv"}, 1)), "date-order-ambiguous:1");
    EXPECT_EQ(import({"kopflos.csv", "--profile", "ohne kopf"}, 0).at("importedCount"), 2);
}

TEST_F(ProfilesTest, InspectAndPreviewSaveAndUseThemToo) {
    EXPECT_EQ(run({"inspect", "mai.csv", "--date-order", "mdy", "--save-profile", "bank"}).status, 0);
    EXPECT_EQ(Json::parse(run({"inspect", "juni.csv", "--json"}).output).at("profile"), "bank");
    EXPECT_EQ(preview({"juni.csv"}).at("rows").at(0).at(0), "06.05.2004");
    EXPECT_EQ(run({"preview", "mai.csv", "--date-order", "mdy", "--save-profile", "zwei"}).status, 0);
    EXPECT_EQ(profiles().size(), 2U);
}

TEST_F(ProfilesTest, WhatIsNotDecidedIsNotSaved) {
    EXPECT_EQ(messages(import({"mai.csv", "--save-profile", "bank"}, 1)), "date-order-ambiguous:2 profile-not-saved:-");
    EXPECT_EQ(profiles(), Json::array());
}

TEST_F(ProfilesTest, TheyAreListed) {
    EXPECT_EQ(run({"profiles"}).output, "0 Profile\n");
    save("zweites");
    save("erstes");
    const Json list = profiles();
    EXPECT_EQ(list.at(0).at("name"), "erstes");
    EXPECT_EQ(list.at(1).at("file"), path(std::string(kFolder) + "zweites.profil"));
    EXPECT_EQ(list.at(0).at("headerNames"), Json({"Datum", "Text", "Betrag"}));
    const Result result = run({"profiles"});
    EXPECT_THAT(result.output, Says("erstes"));
    EXPECT_THAT(result.output, Says("date-order = mdy"));
    EXPECT_THAT(result.output, Says("2 Profile\n"));
}

TEST_F(ProfilesTest, ConfigurationDirectoryOfTheEnvironmentIsUsed) {
    ChildProgram program = this->program({"inspect", "mai.csv", "--date-order", "mdy", "--save-profile", "bank"});
    program.environment["XDG_CONFIG_HOME"] = path("einstellungen");
    EXPECT_EQ(program.run().status, 0);
    EXPECT_TRUE(exists("einstellungen/dmimport/profiles/bank.profil"));
    EXPECT_EQ(std::filesystem::status(path("einstellungen/dmimport")).permissions(), std::filesystem::perms::owner_all);
}

TEST_F(ProfilesTest, MissingOrDamagedOnesAreTold) {
    save("giro");
    Result result = run({"import", "mai.csv", "--store", kStore, "--profile", "gira"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.messages, Says("Das Profil „gira“ gibt es nicht. Meinten Sie „giro“?"));

    const std::pair<const char*, const char*> damages[] = {
        {"unsinn\n", "Zeile 1: Es fehlt das „=“."},
        {"format = csv\nfarbe = rot\n", "Zeile 2: „farbe“ ist keine Angabe eines Profils."},
        {"header = vielleicht\n", "Zeile 1: „header“ ist „yes“ oder „no“."},
        {"date-order = mdx\n", "--date-order: „mdx“ gibt es nicht"},
    };
    for (const auto& [text, words] : damages) {
        write(std::string(kFolder) + "giro.profil", text);
        result = run({"import", "mai.csv", "--store", kStore, "--profile", "giro"});
        EXPECT_EQ(result.status, 2) << text;
        EXPECT_THAT(result.messages, Says(words));
        EXPECT_THAT(result.messages, Says("giro.profil"));
    }
}

TEST_F(ProfilesTest, NamesThatAreNoFileNamesAreRefused) {
    for (const std::string name : {"", "a/b", "..", ".x", "a\nb"}) {
        for (const char* option : {"--profile", "--save-profile"}) {
            const Result result = run({"inspect", "mai.csv", std::string(option) + "=" + name});
            EXPECT_EQ(result.status, 2) << name;
        }
    }
    EXPECT_FALSE(exists("home/.config"));
}

TEST_F(ProfilesTest, FolderThatCannotBeWrittenIsTold) {
    std::filesystem::create_directories(path("home/.config"));
    write("home/.config/dmimport", "eine Datei, wo ein Ordner sein soll");
    const Json file = import({"mai.csv", "--date-order", "mdy", "--save-profile", "bank"}, 1);
    EXPECT_EQ(messages(file), "profile-not-saved:-");
}

} // namespace
