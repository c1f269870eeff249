// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

namespace {

using namespace std::string_literals;

using VerbatimTest = DmimportTest;

TEST_F(VerbatimTest, DefaultsAreCommaNoHeaderNoColumns) {
    write("a.csv", "01.02.2004;A,1\n");
    const Json shown = preview({"a.csv", "--verbatim"});
    EXPECT_EQ(shown.at("result"), 3);
    EXPECT_EQ(shown.at("rows").at(0), Json({"01.02.2004;A", "1"}));
}

TEST_F(VerbatimTest, ImportWithoutColumnsReadsAndWritesNothing) {
    write("a.csv", "a,b\n\nc,d\n");
    const Json file = import({"a.csv", "--verbatim"}, 0);
    EXPECT_EQ(file.at("result"), 3);
    EXPECT_EQ(file.at("importedCount"), 0);
    EXPECT_EQ(file.at("sessionId"), 0) << "no session was written";
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":3,"records":0,"header":0,"preamble":0,"footer":0,"blank":1,"ignored":2})"));
    EXPECT_EQ(show(), Json::array());
    EXPECT_EQ(show("counters").at(0).at("NextImportID"), 1);
}

TEST_F(VerbatimTest, ColumnsDelimiterAndHeaderApply) {
    write("a.csv", "Tag;Wer;Was\n01.02.2004;A;1\n");
    const Json file =
        import({"a.csv", "--verbatim", "--columns", "0=Datum,2=Betrag", "--delimiter", ";", "--header"}, 0);
    EXPECT_EQ(file.at("importedCount"), 1);
}

TEST_F(VerbatimTest, ErrorTextIsTheLibrarysOwn) {
    write("a.csv", "x;1\n01.02.2004;2\ny \xFC;3\n");
    const Json file = import({"a.csv", "--verbatim", "--columns", "0=Datum,1=Betrag", "--delimiter", ";"}, 1);
    EXPECT_EQ(file.at("result"), 1);
    EXPECT_EQ(file.at("errorText"), "Fehler beim Analysieren der Daten aus der XML-Datei.<br>"
                                    "Zeile 1: x<br>Zeile 2: y ü<br>");
    EXPECT_EQ(messages(file), "bad-date:1 bad-date:3") << "ours name the physical line";
}

TEST_F(VerbatimTest, WhatTheLibraryCutsIsToldAndTaken) {
    write("a.csv", "01.02.2004;A\0B;1\n\0verloren\n02.02.2004;\"C;2\n03.02.2004;D;4\n"s);
    const Json file =
        import({"a.csv", "--verbatim", "--columns", "0=Datum,1=Empfaenger,2=Betrag", "--delimiter", ";"}, 0);
    EXPECT_EQ(messages(file), "nul-byte:1 nul-byte:2 unbalanced-quote:3");
    EXPECT_EQ(file.at("importedCount"), 3);
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":4,"records":3,"header":0,"preamble":0,"footer":0,"blank":0,"ignored":1})"));
    EXPECT_EQ(show().at(0).at("Empfaenger"), "A");
    EXPECT_EQ(show().at(0).at("Betrag"), nullptr);
    EXPECT_EQ(show().at(1).at("Empfaenger"), "C;2");
    EXPECT_EQ(show().at(2).at("Betrag"), 4.0);
}

TEST_F(VerbatimTest, LinesAreNumberedBehindWhatTheLibrarySkips) {
    write("a.csv", "\0x\n \n01.02.2004;1\n\t\n31.02.2004;2\n"s);
    const Json file = import({"a.csv", "--verbatim", "--columns", "0=Datum,1=Betrag", "--delimiter", ";"}, 1);
    EXPECT_EQ(messages(file), "nul-byte:1 bad-date:5");
}

} // namespace
