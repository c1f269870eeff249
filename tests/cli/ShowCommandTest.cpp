// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"
#include "cli/ModelTables.h"
#include "datamodel/DataModel.h"
#include "store/Store.h"

namespace {

class ShowCommandTest : public DmimportTest {
protected:
    ShowCommandTest() {
        write("a.csv", "01.02.2004;M\xFCller;-1.650,00;Miete\n05.02.2004;Lohn;2.500,1;\n06.02.2004;;0,1;x\n");
        import({"a.csv", "--delimiter", ";", "--columns", "0=Datum,1=Empfaenger,2=Betrag,3=Verwendungszweck"}, 0);
    }
    /// An account with bookings, as an import of the home-banking exchange leaves it.
    void addAccount(const char* bank, const char* number, int bookings) const {
        Store store = Store::open(path(kStore), Store::Access::readWrite);
        RecordNode& account = *ModelTables::table(store.model().model().root(), "HomeBankingImport").append();
        set(account, "BLZ", text(bank));
        set(account, "KtoNummer", text(number));
        set(account, "Bezeichnung", text("Giro"));
        for (int i = 0; i < bookings; ++i) {
            RecordNode& booking = *ModelTables::table(account, "DataSets").append();
            DataType date;
            date = DMDate(31, 12, 2004);
            set(booking, "BuchungsDatum", date);
            set(booking, "Betrag", DataType::makeCurrency(-12.5));
            set(booking, "Steuerrelevant", DataType::makeBoolean(true));
        }
        store.commit();
    }
    static void set(RecordNode& record, const char* field, const DataType& value) {
        ASSERT_TRUE(ModelTables::field(record, field).setValue(value, NDX(), 0)) << field;
    }
    static DataType text(const char* bytes) {
        DataType value;
        value = bytes;
        return value;
    }
    Result showing(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"show", "--store", kStore});
        return run(arguments);
    }
};

TEST_F(ShowCommandTest, TableIsAlignedAndPlainOffATerminal) {
    EXPECT_EQ(showing({}).output, "Datum          Betrag  Empfaenger  Verwendungszweck  Buchungstext  Kategorie  "
                                  "Unterkategorie  ImportID  UniqueID\n"
                                  "01.02.2004  -1.650,00  Müller      Miete                                            "
                                  "                 1         1\n"
                                  "05.02.2004   2.500,10  Lohn                                                         "
                                  "                 1         2\n"
                                  "06.02.2004       0,10              x                                                "
                                  "                 1         3\n"
                                  "3 Datensätze\n");
}

TEST_F(ShowCommandTest, DataSetsAreTheDefault) { EXPECT_EQ(showing({}).output, showing({"data-sets"}).output); }

TEST_F(ShowCommandTest, AmountsInJsonAreTheShortestThatReadBack) {
    const Result result = showing({"--json"});
    EXPECT_EQ(
        result.output,
        R"({"dataSets":[)"
        "\n"
        R"({"Datum":"2004-02-01","Betrag":-1650.0,"Empfaenger":"Müller","Verwendungszweck":"Miete","Buchungstext":"","Kategorie":"","Unterkategorie":"","ImportID":1,"UniqueID":1,"Zeile":1,"Geaendert":null},)"
        "\n"
        R"({"Datum":"2004-02-05","Betrag":2500.1,"Empfaenger":"Lohn","Verwendungszweck":"","Buchungstext":"","Kategorie":"","Unterkategorie":"","ImportID":1,"UniqueID":2,"Zeile":2,"Geaendert":null},)"
        "\n"
        R"({"Datum":"2004-02-06","Betrag":0.1,"Empfaenger":"","Verwendungszweck":"x","Buchungstext":"","Kategorie":"","Unterkategorie":"","ImportID":1,"UniqueID":3,"Zeile":3,"Geaendert":null})"
        "\n"
        "]}\n");
}

TEST_F(ShowCommandTest, LimitShowsTheFirstRows) {
    EXPECT_EQ(Json::parse(showing({"--json", "--limit", "2"}).output).at("dataSets").size(), 2U);
    EXPECT_THAT(showing({"--limit", "2"}).output, Says("2 von 3 Datensätzen"));
    EXPECT_EQ(showing({"--limit", "0", "--json"}).output, "{\"dataSets\":[]}\n");
    EXPECT_EQ(showing({"--limit", "99999999999"}).output, showing({}).output);
}

TEST_F(ShowCommandTest, QuietLeavesTheSummaryOut) {
    EXPECT_EQ(showing({"--quiet", "--limit", "0"}).output, "");
    EXPECT_THAT(showing({"--limit", "0"}).output, Says("0 von 3"));
}

TEST_F(ShowCommandTest, EmptyTables) {
    EXPECT_EQ(showing({"accounts", "--json"}).output, "{\"accounts\":[]}\n");
    EXPECT_EQ(showing({"bookings", "--json"}).output, "{\"bookings\":[]}\n");
    EXPECT_EQ(showing({"bookings"}).output, "0 Buchungen\n");
}

TEST_F(ShowCommandTest, CountersAreOneObject) {
    const Json counters = show("counters");
    ASSERT_EQ(counters.size(), 1U);
    EXPECT_EQ(counters.at(0).at("NextImportID"), 2);
    EXPECT_EQ(counters.at(0).at("NextUniqueID"), 4);
    EXPECT_EQ(counters.at(0).at("NeueDatenVorhanden"), true);
}

TEST_F(ShowCommandTest, BookingsCarryTheirAccountsNumbers) {
    addAccount("10020030", "4711", 2);
    addAccount("50060070", "815", 1);
    const Json bookings = show("bookings");
    ASSERT_EQ(bookings.size(), 3U);
    EXPECT_EQ(bookings.at(0).begin().key(), "BLZ") << "first of all";
    EXPECT_EQ(bookings.at(0).at("BLZ"), "10020030");
    EXPECT_EQ(bookings.at(1).at("KtoNummer"), "4711");
    EXPECT_EQ(bookings.at(2).at("KtoNummer"), "815");
    EXPECT_EQ(bookings.at(2).at("BuchungsDatum"), "2004-12-31");
    EXPECT_EQ(bookings.at(2).at("Betrag"), -12.5);
    EXPECT_EQ(bookings.at(2).at("Steuerrelevant"), true);
    EXPECT_EQ(show("accounts").at(1).at("Bezeichnung"), "Giro");
    EXPECT_THAT(showing({"bookings", "--limit", "1"}).output, Says("1 von 3 Buchungen"));
    EXPECT_EQ(Json::parse(showing({"bookings", "--json", "--limit", "1"}).output).at("bookings").size(), 1U);
    EXPECT_THAT(showing({"bookings"}).output, Says("Ja"));
}

TEST_F(ShowCommandTest, DocumentIsValidAndSafeWhateverTheTextsHold) {
    write("b.csv", "01.02.2004;\x81\x90\x9D\x7F\x1B;1;\xE4\n");
    import({"b.csv", "--verbatim", "--delimiter", ";", "--columns", "0=Datum,1=Empfaenger,2=Betrag"}, 0);
    const Result result = showing({"--json"});
    EXPECT_THAT(result.output, Says("\\u0081\\u0090\\u009d\\u007f\\u001b"));
    EXPECT_EQ(result.output.find("\xC2\x90"), std::string::npos) << "a control character of eight bits";
    EXPECT_EQ(show().back().at("Empfaenger"), "\u0081\u0090\u009D\u007F\u001B");
    EXPECT_THAT(showing({}).output, Says("\\u0081\\u0090\\u009d␡␛"));
}

TEST_F(ShowCommandTest, StoreIsNotTouched) {
    const std::string bytes = read(kStore);
    showing({});
    showing({"--json"});
    EXPECT_EQ(read(kStore), bytes);
}

} // namespace
