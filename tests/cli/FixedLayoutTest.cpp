// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

namespace {

using FixedLayoutTest = DmimportTest;

TEST_F(FixedLayoutTest, TaxDataNeedsNoColumns) {
    write("steuer.SDI", "Miete M\xE4rz;-650,00;01.03.2004;Vermieter;Wohnen;Miete;Dauerauftrag\n"
                        "Spende;-20,00;05.03.2004;Verein;Soziales;;\n");
    const Json file = import({"steuer.SDI"}, 0);
    EXPECT_EQ(file.at("format"), 3);
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(show().at(0), Json::parse(R"({"Datum":"2004-03-01","Betrag":-650.0,"Empfaenger":"Vermieter",
        "Verwendungszweck":"Miete März","Buchungstext":"Dauerauftrag","Kategorie":"Wohnen","Unterkategorie":"Miete",
        "ImportID":1,"UniqueID":1,"Zeile":1,"Geaendert":null})"));
    EXPECT_EQ(show("sessions").at(0).at("ImportTyp"), 3);
}

TEST_F(FixedLayoutTest, HeaderOptionHoldsForTaxData) {
    write("steuer.sdi", "Zweck;Betrag;Datum;Wer;Kategorie;Unter;Text\nMiete;-650,00;01.03.2004;V;W;M;D\n");
    EXPECT_EQ(import({"steuer.sdi", "--verbatim", "--header"}, 0).at("importedCount"), 1);
    EXPECT_EQ(messages(import({"steuer.sdi", "--verbatim"}, 1)), "bad-date:1");
    const Json file = import({"steuer.sdi"}, 0);
    EXPECT_EQ(file.at("importedCount"), 1) << "without the option it is found";
    EXPECT_EQ(file.at("format"), 3);
}

TEST_F(FixedLayoutTest, ZasterhofExportAlwaysHasAHeader) {
    write("geld.zhof", "a;b;c;d;e;Datum;g;Text;Zweck;Wer;Betrag;l;Kategorie;Unter\n"
                       ";;;;;01.03.2004;;Dauerauftrag;Miete;Vermieter;-650,00;;Wohnen;Miete\n"
                       ";;;;;32.01.2004;;;X;Y;1,00;;;\n");
    const Json file = import({"geld.zhof"}, 1);
    EXPECT_EQ(file.at("format"), 5);
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(file.at("lines").at("header"), 1);
    EXPECT_EQ(messages(file), "bad-date:3");
    EXPECT_THAT(file.at("messages").at(0).at("text").get<std::string>(), Says("„32.01.2004“"));
    EXPECT_EQ(show().at(0).at("Verwendungszweck"), "Miete");
    EXPECT_EQ(show().at(0).at("Unterkategorie"), "Miete");
}

TEST_F(FixedLayoutTest, PreviewShowsWhatWouldBeStored) {
    write("steuer.sdi", "Miete;-650;01.03.2004;V;W;M;D\n");
    const Json shown = preview({"steuer.sdi"});
    EXPECT_EQ(shown.at("format"), 3);
    EXPECT_EQ(shown.at("result"), 2);
    EXPECT_EQ(shown.at("rows").at(0), Json({"Miete", "-650,00", "01.03.2004", "V", "W", "M", "D"}));
}

TEST_F(FixedLayoutTest, UnassignedPreviewShowsTheRawColumns) {
    write("geld.zhof", "a;b;c\n1;2;3\n");
    const Json shown = preview({"geld.zhof", "--unassigned"});
    EXPECT_EQ(shown.at("format"), 5);
    EXPECT_EQ(shown.at("result"), 3);
    EXPECT_EQ(shown.at("header"), Json({"a", "b", "c"}));
    EXPECT_EQ(shown.at("rows"), Json::parse(R"([["1","2","3"]])"));
}

TEST_F(FixedLayoutTest, FormatOptionOverridesTheExtension) {
    write("steuer.txt", "Miete;-650;01.03.2004;V;W;M;D\n");
    const Json file = import({"steuer.txt", "--format", "tax"}, 0);
    EXPECT_EQ(file.at("format"), 3);
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(show("sessions").at(0).at("ImportFileName"), "steuer.txt") << "not the name by which the library got it";
    EXPECT_EQ(leftovers(), std::vector<std::string>());

    write("liste.qif", "01.02.2004;A;1\n02.02.2004;B;2\n");
    EXPECT_EQ(import({"liste.qif", "--format", "csv", "--columns", "0=Datum,2=Betrag"}, 0).at("format"), 1);
    EXPECT_EQ(show("sessions").at(1).at("ImportFileName"), "liste.qif");
}

TEST_F(FixedLayoutTest, StarMoneyLineThatIsRefusedEndsTheFile) {
    const std::string header = "Datum|Wer|Betrag|W|1|2|3|4|5|6|7|8|9|10|11|12|13|14|Text|Kat|Unter\n";
    const std::string good = "01.03.2004|Vermieter|-650,00|EUR|Miete|||||||||||||||Wohnen|Miete\n";
    const std::string bad = "31.02.2004|X|1,00|EUR|||||||||||||||||\n";
    std::string goodLine = good;
    write("sm.ssx", header + goodLine);
    const Json file = import({"sm.ssx"}, 0);
    EXPECT_EQ(file.at("format"), 0);
    EXPECT_EQ(file.at("importedCount"), 1) << file;
    EXPECT_EQ(file.at("lines").at("header"), 1);

    write("schlecht.ssx", header + good + bad + good);
    const Json before = dump();
    const Json failed = import({"schlecht.ssx", "--verbatim"}, 1);
    EXPECT_EQ(failed.at("result"), 0);
    EXPECT_EQ(failed.at("committed"), false);
    EXPECT_EQ(messages(failed), "bad-date:3");
    EXPECT_EQ(failed.at("lines"),
              Json::parse(R"({"read":4,"records":2,"header":1,"preamble":0,"footer":0,"blank":0,"ignored":1})"));
    EXPECT_EQ(dump(), before);

    const Json kept = import({"schlecht.ssx", "--verbatim", "--keep-partial"}, 1);
    EXPECT_EQ(kept.at("committed"), true);
    EXPECT_EQ(kept.at("importedCount"), 1);
    EXPECT_EQ(show().size(), 2U);

    const Json prepared = import({"schlecht.ssx"}, 1);
    EXPECT_EQ(prepared.at("importedCount"), 2) << "the intake takes the one line out";
    EXPECT_EQ(prepared.at("refusedCount"), 1);
    EXPECT_EQ(messages(prepared), "bad-date:3");
    EXPECT_EQ(show().back().at("Unterkategorie"), "Miete");
}

} // namespace
