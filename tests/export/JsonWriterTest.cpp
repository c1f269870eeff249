// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "export/WrittenText.h"

namespace {

std::string json(DataManager& model) { return WrittenText("json", model).text; }

TEST(JsonWriter, RecordsAndTheirSessions) {
    DataManager model;
    RecordBook::addSession(model, 1, "a.csv");
    RecordBook::addSession(model, 2, "b.csv");
    RecordBook::add(model, {{14, 3, 2024}, -12.5, {"B\xE4\x63ker", "", "", "", ""}}, 2);
    BookRow nothing;
    nothing.hasAmount = false;
    RecordBook::add(model, nothing, 2);
    EXPECT_EQ(json(model),
              "{\"dataSets\":[\n"
              "{\"Datum\":\"2024-03-14\",\"Betrag\":-12.5,\"Empfaenger\":\"B\xC3\xA4\x63ker\","
              "\"Verwendungszweck\":\"\",\"Buchungstext\":\"\",\"Kategorie\":\"\",\"Unterkategorie\":\"\","
              "\"ImportID\":2,\"UniqueID\":1,\"Zeile\":null,\"Geaendert\":null},\n"
              "{\"Datum\":null,\"Betrag\":null,\"Empfaenger\":\"\","
              "\"Verwendungszweck\":\"\",\"Buchungstext\":\"\",\"Kategorie\":\"\",\"Unterkategorie\":\"\","
              "\"ImportID\":2,\"UniqueID\":2,\"Zeile\":null,\"Geaendert\":null}\n"
              "],\"sessions\":[\n"
              "{\"ImportID\":2,\"ImportDatum\":null,\"ImportTyp\":null,\"ImportFileName\":\"b.csv\","
              "\"ImportInfo\":\"\",\"Datensaetze\":null,\"Abgelehnt\":null,\"Bekannt\":null,"
              "\"Summe\":null,\"ErsterTag\":null,\"LetzterTag\":null,\"Zurueckgenommen\":null,\"Pruefsumme\":\"\"}\n"
              "]}\n")
        << "the session of no record is left out";
}

TEST(JsonWriter, NoRecordsAreADocumentToo) {
    DataManager model;
    EXPECT_EQ(json(model), "{\"dataSets\":[],\"sessions\":[]}\n");
}

TEST(JsonWriter, WhatCouldSteerATerminalIsEscaped) {
    DataManager model;
    RecordBook::add(model, {{}, 0.0, {"\"\\\n\x1B\x7F\x81\x90\xA0\x80", "", "", "", ""}});
    EXPECT_THAT(json(model), testing::HasSubstr("\"Empfaenger\":\"\\\"\\\\\\u000a\\u001b\\u007f\\u0081\\u0090"
                                                "\xC2\xA0\xE2\x82\xAC\""));
}

TEST(JsonWriter, AmountsAreExactAndNeverRounded) {
    DataManager model;
    for (const double amount : {-1650.0, 0.1 + 0.2, 9999999999999.99, 1e-7})
        RecordBook::add(model, {{}, amount, {}});
    const std::string text = json(model);
    for (const char* digits : {":-1650.0,", ":0.30000000000000004,", ":9999999999999.99,", ":0.0000001,"})
        EXPECT_THAT(text, testing::HasSubstr(digits));
}

} // namespace
