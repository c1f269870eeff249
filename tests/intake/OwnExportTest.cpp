// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "intake/Intake.h"
#include "intake/StrictCells.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kHeader = "\xEF\xBB\xBF"
                            "Datum;Betrag;Empfaenger;Verwendungszweck;Buchungstext;Kategorie;Unterkategorie;"
                            "ImportID;UniqueID;Zeile\n";
const std::string kPreparedHeader = "Datum;Empfaenger;Verwendungszweck;Buchungstext;Kategorie;Unterkategorie;Betrag\n";

IntakeResult reading(const std::string& bytes, const InspectionOptions& options = {}) {
    return Intake::read(bytes, Import::eFormatCSV, options);
}

/// What the library gets of these lines below the header.
std::string prepared(const std::string& lines) {
    const IntakeResult result = reading(kHeader + lines);
    EXPECT_TRUE(result.ownExport);
    EXPECT_FALSE(result.undecided.has_value());
    EXPECT_EQ(result.prepared.text.substr(0, kPreparedHeader.size()), kPreparedHeader);
    return result.prepared.text.substr(kPreparedHeader.size());
}

std::vector<std::string> codes(const IntakeResult& result) {
    std::vector<std::string> list;
    for (const IntakeMessage& message : result.prepared.messages)
        list.push_back(message.code + ":" + std::to_string(message.line));
    return list;
}

TEST(OwnExport, EverythingIsKnownFromTheHeader) {
    const IntakeResult result = reading(kHeader + "01.02.2024;-1,5;a;b;c;d;e;1;7;\n");
    EXPECT_TRUE(result.ownExport);
    EXPECT_EQ(result.delimiter, ';');
    EXPECT_EQ(result.confidence, 1.0);
    EXPECT_EQ(result.columns.at("Betrag"), std::vector<int>{1});
    EXPECT_EQ(result.columns.size(), 7U);
    EXPECT_THAT(result.prepared.lines, ElementsAre(LineUse::header, LineUse::record));
    EXPECT_EQ(result.prepared.text, kPreparedHeader + "01.02.2024;a;b;c;d;e;-1,5\n");
}

TEST(OwnExport, AnotherHeaderIsAForeignFile) {
    EXPECT_FALSE(reading("Datum;Betrag;Empfaenger\n01.02.2024;-1,50;a\n").ownExport);
    EXPECT_FALSE(reading(kHeader.substr(0, kHeader.size() - 1) + ";x\n").ownExport);
    EXPECT_FALSE(Intake::read(kHeader, Import::eFormatTaxData, {}).ownExport);
}

TEST(OwnExport, WhoSaysHowAFileIsReadIsObeyed) {
    InspectionOptions options;
    options.columns = std::map<std::string, int>{{"Datum", 0}, {"Betrag", 1}};
    EXPECT_FALSE(reading(kHeader + "01.02.2024;-1,50;a;b;c;d;e;1;7;\n", options).ownExport);
}

TEST(OwnExport, QuotesAndEncodingOfASpreadsheetAreRead) {
    std::string quoted = kHeader.substr(3);
    quoted = "\"" + quoted.substr(0, 5) + "\"" + quoted.substr(5);
    EXPECT_TRUE(reading(quoted).ownExport);
    EXPECT_EQ(reading(kHeader + "\"01.02.2024\";1,00;a;;;;;;;\r\n").prepared.text,
              kPreparedHeader + "01.02.2024;a;;;;;1,00\n");
}

TEST(OwnExport, DatesAndAmountsOfAPersonAreRead) {
    EXPECT_EQ(prepared("1.2.24;1.234,5;a;;;;;;;\n"), "01.02.2024;a;;;;;1234,50\n");
    EXPECT_EQ(prepared("2024-02-01;1;a;;;;;;;\n"), "01.02.2024;a;;;;;1\n");
    EXPECT_EQ(prepared("05.06.0007;1;a;;;;;;;\n"), "05.06.0007;a;;;;;1\n") << "of whatever year";
}

TEST(OwnExport, NoDateAndNoAmountAreKept) {
    EXPECT_EQ(prepared(";;a;;;;;;;\n"), ";a;;;;\n") << "no cell for the amount";
    EXPECT_EQ(prepared(";;;;;;;;;\n"), ";;;;;\n");
    EXPECT_EQ(prepared("\n;0,00;;;;;;;;\n"), "\n;;;;;;0,00\n");
}

TEST(OwnExport, GuardsAndQuotesAreUndone) {
    EXPECT_EQ(prepared(";0,00;'=1;''=1;'s;\"a;\"\"b\";\" c \";;;\n"), ";=1;'=1;'s;\"a;\"\"b\"; c ;0,00\n");
}

TEST(OwnExport, WhatNoLineHoldsIsHandedOverBesideIt) {
    const std::string longText(4000, 'x');
    const IntakeResult result =
        reading(kHeader + ";0,00;\"a\r\nb\";;;;;;;\n;0,00;" + longText + ";" + longText + ";kurz;;;;;\n");
    EXPECT_THAT(result.prepared.lines,
                ElementsAre(LineUse::header, LineUse::record, LineUse::ignored, LineUse::record));
    ASSERT_EQ(result.prepared.fullTexts.size(), 3U);
    EXPECT_EQ(result.prepared.fullTexts[0].line, 2);
    EXPECT_STREQ(result.prepared.fullTexts[0].field, "Empfaenger");
    EXPECT_EQ(result.prepared.fullTexts[0].text, "a\r\nb");
    EXPECT_EQ(result.prepared.fullTexts[1].line, 4);
    EXPECT_EQ(result.prepared.fullTexts[2].text, longText);
    EXPECT_STREQ(result.prepared.fullTexts[2].field, "Verwendungszweck");
    const std::string shortText(320, 'x');
    EXPECT_EQ(result.prepared.text,
              kPreparedHeader + ";a\r b;;;;;0,00\n\n;" + shortText + ";" + shortText + ";kurz;;;0,00\n");
}

TEST(OwnExport, LongestPossibleLineIsShortEnough) {
    const std::string quotes(8000, '"');
    const std::string amount = "-0," + std::string(340, '0') + "1";
    const IntakeResult result = reading(kHeader + "01.02.2024;" + amount + ";\"" + quotes + "\";\"" + quotes + "\";\"" +
                                        quotes + "\";\"" + quotes + "\";\"" + quotes + "\";;;\n");
    EXPECT_EQ(result.prepared.fullTexts.size(), 5U);
    EXPECT_LE(result.prepared.text.size() - kPreparedHeader.size(), 4094U);
    EXPECT_EQ(result.prepared.fullTexts[4].text, std::string(4000, '"'));
}

TEST(OwnExport, RecordsThatCannotBeReadAreRefusedOneByOne) {
    const IntakeResult result = reading(kHeader + "31.02.2024;1;a;;;;;;;\n01.02.2024;eins;b;;;;;;;\n;1;c;;;;;;;\n");
    EXPECT_THAT(codes(result), ElementsAre("bad-date:2", "bad-amount:3"));
    EXPECT_EQ(result.prepared.refused, 2);
    EXPECT_EQ(result.prepared.text, kPreparedHeader + "\n\n;c;;;;;1\n");
}

TEST(OwnExport, DamagedFileIsRefusedAsAWhole) {
    for (const std::string line : {"01.02.2024;1;a;;;;;;\n", "01.02.2024;1;\"a;;;;;;;\n", "01.02.2024;1;a\"b;;;;;;;\n",
                                   "01.02.2024;1;\"a\"b;;;;;;;\n", "x\n"}) {
        const IntakeResult result = reading(kHeader + ";1;;;;;;;;\n" + line + ";2;;;;;;;;\n");
        ASSERT_TRUE(result.undecided.has_value()) << line;
        EXPECT_EQ(result.undecided->code, "export-damaged");
        EXPECT_EQ(result.undecided->line, 3) << line;
    }
}

TEST(OwnExport, BookingsBecomeRecords) {
    const IntakeResult result = reading("BuchungsDatum;ValutaDatum;Betrag;Empfaenger;Verwendungszweck;GVCode;Kategorie;"
                                        "Notiz;Steuerrelevant;BLZ;KtoNummer;BuchungsID;UniqueID\n"
                                        "01.02.2024;02.02.2024;-1,00;a;b;116;c;n;1;100;0815;B-1;4\n");
    EXPECT_TRUE(result.ownExport);
    EXPECT_EQ(result.prepared.text,
              "BuchungsDatum;Empfaenger;Verwendungszweck;GVCode;Kategorie;Betrag\n01.02.2024;a;b;116;c;-1,00\n");
    EXPECT_STREQ(result.prepared.columns.at(3).field, "Buchungstext");
}

TEST(StrictCells, FieldForFieldByteForByte) {
    StrictCells cells("a; b ;\"c;\"\"\nd\"\r\n\n;", ';');
    ASSERT_TRUE(cells.next());
    EXPECT_THAT(cells.cells(), ElementsAre("a", " b ", "c;\"\nd"));
    EXPECT_EQ(cells.firstLine(), 0);
    EXPECT_EQ(cells.lineCount(), 2);
    ASSERT_TRUE(cells.next());
    EXPECT_THAT(cells.cells(), ElementsAre(""));
    EXPECT_EQ(cells.firstLine(), 2);
    ASSERT_TRUE(cells.next());
    EXPECT_THAT(cells.cells(), ElementsAre("", ""));
    EXPECT_FALSE(cells.next());
    EXPECT_FALSE(cells.isDamaged());
}

TEST(StrictCells, NothingIsNoRecord) {
    StrictCells cells("", ';');
    EXPECT_FALSE(cells.next());
    EXPECT_THAT(cells.cells(), IsEmpty());
}

} // namespace
