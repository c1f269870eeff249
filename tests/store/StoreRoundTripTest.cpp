// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "framework/datamodel_api/DMCurrency.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

using namespace ModelAccess;

namespace {

class StoreRoundTrip : public ::testing::Test {
protected:
    Store open() { return Store::open(m_file, Store::Access::readWrite); }
    Store openForReading() { return Store::open(m_file, Store::Access::readOnly); }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

} // namespace

TEST_F(StoreRoundTrip, NewStoreHoldsTheFreshModel) {
    DataManager fresh;
    {
        Store store = open();
        EXPECT_EQ(dump(fresh), dump(store.model()));
        store.commit();
    }
    Store store = openForReading();
    EXPECT_EQ(dump(fresh), dump(store.model()));
}

TEST_F(StoreRoundTrip, ReopenedTreeEqualsTheOneThatWasCommitted) {
    std::string committed;
    {
        Store store = open();
        DataManager& model = store.model();
        appendRecords(model, 1, 20);
        RecordNode& session = *table(model, "Importsessions").append();
        set(session, "ImportDatum", date(24, 12, 2004));
        set(session, "ImportInfo", text("Weihnachten"));
        set(session, "ImportTyp", integer(1));
        appendBooking(appendAccount(model, "4711"), 1);
        appendAccount(model, "4712");
        set(root(model), "NextImportID", integer(2));
        set(root(model), "LetztesImportDatum", date(24, 12, 2004));
        set(root(model), "NeueDatenVorhanden", DataType::makeBoolean(true));
        committed = dump(model);
        store.commit();
        EXPECT_EQ(committed, dump(store.model()));
    }
    Store writing = open();
    EXPECT_EQ(committed, dump(writing.model()));
    writing.commit();
    Store reading = openForReading();
    EXPECT_EQ(committed, dump(reading.model()));
}

TEST_F(StoreRoundTrip, EveryByteOfATextComesBack) {
    std::string all;
    for (int byte = 1; byte <= 0xFF; ++byte)
        all.push_back(static_cast<char>(byte));
    {
        Store store = open();
        for (const char& byte : all)
            set(*table(store.model(), "DataSets").append(), "Buchungstext", text(std::string(1, byte)));
        set(*table(store.model(), "DataSets").append(), "Buchungstext", text(all));
        store.commit();
    }
    Store store = openForReading();
    TableNode& records = table(store.model(), "DataSets");
    for (unsigned byte = 1; byte <= 0xFF; ++byte)
        EXPECT_EQ(std::string(1, static_cast<char>(byte)), textOf(*records.row(byte), "Buchungstext"));
    EXPECT_EQ(all, textOf(*records.row(0x100), "Buchungstext"));
}

TEST_F(StoreRoundTrip, TextEndsAtAZeroByteAsInTheModel) {
    {
        Store store = open();
        set(*table(store.model(), "DataSets").append(), "Buchungstext", text(std::string("vor\0nach", 8)));
        store.commit();
    }
    Store store = openForReading();
    EXPECT_EQ("vor", textOf(*table(store.model(), "DataSets").row(1), "Buchungstext"));
}

TEST_F(StoreRoundTrip, LongTextComesBack) {
    const std::string longText = std::string(4094, 'x') + '\xDF';
    {
        Store store = open();
        set(*table(store.model(), "DataSets").append(), "Verwendungszweck", text(longText));
        store.commit();
    }
    Store store = openForReading();
    EXPECT_EQ(longText, textOf(*table(store.model(), "DataSets").row(1), "Verwendungszweck"));
}

TEST_F(StoreRoundTrip, EmptyValueZeroDateAndEmptyTextStayApart) {
    {
        Store store = open();
        TableNode& records = table(store.model(), "DataSets");
        records.append();
        RecordNode& second = *records.append();
        ASSERT_TRUE(set(second, "Datum", noDate()));
        ASSERT_TRUE(set(second, "Empfaenger", text("")));
        store.commit();
    }
    {
        Store store = openForReading();
        TableNode& records = table(store.model(), "DataSets");
        EXPECT_EQ(DataType::eEmpty, get(*records.row(1), "Datum").kind());
        EXPECT_EQ(DataType::eEmpty, get(*records.row(1), "Empfaenger").kind());
        EXPECT_EQ(DataType::eDate, get(*records.row(2), "Datum").kind());
        EXPECT_TRUE(get(*records.row(2), "Datum").getDate().isZero());
        EXPECT_EQ(DataType::eString, get(*records.row(2), "Empfaenger").kind());
    }
    EXPECT_EQ((std::vector<std::string>{"NULL|NULL", "0000-00-00|"}),
              Sql(m_file).rows("SELECT Datum, Empfaenger FROM DataSets ORDER BY id"));
}

TEST_F(StoreRoundTrip, AmountsComeBackBitForBit) {
    struct Case {
        double amount;
        const char* why;
    };
    const Case cases[] = {
        {0.0, "zero"},
        {0.1, "no exact binary form"},
        {0.1 + 0.2, "more than 15 digits"},
        {-1.0 / 3, "every bit of the fraction used"},
        {4, "SQLite keeps whole numbers as integers"},
        {-0.01, "negative below one"},
        {DMCurrency::MAX_CURRENCY, "upper bound"},
        {DMCurrency::MIN_CURRENCY, "lower bound"},
        {std::nextafter(DMCurrency::MAX_CURRENCY, 0), "just below the bound"},
        {std::numeric_limits<double>::denorm_min(), "the smallest number there is"},
        {std::numeric_limits<double>::min(), "the smallest normal number"},
        {1e-300, "tiny"},
    };
    {
        Store store = open();
        for (const Case& c : cases)
            ASSERT_TRUE(set(*table(store.model(), "DataSets").append(), "Betrag", amount(c.amount))) << c.why;
        store.commit();
    }
    Store store = openForReading();
    unsigned row = 0;
    for (const Case& c : cases) {
        const double read = get(*table(store.model(), "DataSets").row(++row), "Betrag").getCurrency();
        EXPECT_EQ(std::bit_cast<std::uint64_t>(c.amount), std::bit_cast<std::uint64_t>(read)) << c.why;
    }
}

// SQLite has no negative zero in a column of numbers; the display form of both is the same.
TEST_F(StoreRoundTrip, NegativeZeroComesBackAsZero) {
    {
        Store store = open();
        set(*table(store.model(), "DataSets").append(), "Betrag", amount(-0.0));
        store.commit();
    }
    Store store = openForReading();
    const double read = get(*table(store.model(), "DataSets").row(1), "Betrag").getCurrency();
    EXPECT_EQ(0.0, read);
    EXPECT_FALSE(std::signbit(read));
}

TEST_F(StoreRoundTrip, NumbersDatesAndFlagsComeBackFromTheirBounds) {
    {
        Store store = open();
        TableNode& records = table(store.model(), "DataSets");
        RecordNode& first = *records.append();
        set(first, "Datum", date(1, 1, 1));
        set(first, "ImportID", integer(std::numeric_limits<std::int32_t>::min()));
        RecordNode& second = *records.append();
        set(second, "Datum", date(31, 12, 9999));
        set(second, "ImportID", integer(std::numeric_limits<std::int32_t>::max()));
        RecordNode& account = appendAccount(store.model(), "1");
        set(account, "ExistsInHB", DataType::makeBoolean(false));
        store.commit();
    }
    Store store = openForReading();
    TableNode& records = table(store.model(), "DataSets");
    EXPECT_EQ(DMDate(1, 1, 1), get(*records.row(1), "Datum").getDate());
    EXPECT_EQ(DMDate(31, 12, 9999), get(*records.row(2), "Datum").getDate());
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), get(*records.row(1), "ImportID").getInt());
    EXPECT_EQ(std::numeric_limits<std::int32_t>::max(), get(*records.row(2), "ImportID").getInt());
    const DataType flag = get(*table(store.model(), "HomeBankingImport").row(1), "ExistsInHB");
    EXPECT_EQ(DataType::eBoolean, flag.kind());
    EXPECT_FALSE(flag.getBoolean());
}

TEST_F(StoreRoundTrip, TableIsStoredUpToItsLastRow) {
    constexpr int kMost = 65535;
    {
        Store store = open();
        appendRecords(store.model(), 1, kMost);
        EXPECT_EQ(nullptr, table(store.model(), "DataSets").append());
        store.commit();
    }
    EXPECT_EQ("65535|65535", Sql(m_file).value("SELECT count(*), (SELECT Anzahl FROM Zeilenzahlen WHERE Tabelle = "
                                               "'DataSets') FROM DataSets"));
    Store store = open();
    const std::vector<int> numbers = recordNumbers(store.model());
    ASSERT_EQ(static_cast<std::size_t>(kMost), numbers.size());
    for (int number = 1; number <= kMost; ++number)
        ASSERT_EQ(number, numbers[static_cast<std::size_t>(number) - 1]);
    EXPECT_EQ(nullptr, table(store.model(), "DataSets").append());
}

TEST_F(StoreRoundTrip, BookingsComeBackUnderTheirAccounts) {
    std::string committed;
    {
        Store store = open();
        RecordNode& first = appendAccount(store.model(), "1");
        RecordNode& second = appendAccount(store.model(), "2");
        appendAccount(store.model(), "3");
        for (int number = 1; number <= 5; ++number)
            appendBooking(number % 2 == 1 ? first : second, number);
        store.commit();
        // Rows of both accounts now lie between each other in the file.
        appendBooking(first, 6);
        appendBooking(second, 7);
        appendBooking(first, 8);
        store.commit();
        committed = dump(store.model());
    }
    EXPECT_EQ((std::vector<std::string>{"1|5", "2|3"}),
              Sql(m_file).rows("SELECT KtoNummer, count(*) FROM HomeBankingImport JOIN HomeBankingDataSets ON KontoID "
                               "= HomeBankingImport.id GROUP BY KtoNummer"));
    Store store = openForReading();
    EXPECT_EQ(committed, dump(store.model()));
}

TEST_F(StoreRoundTrip, BookingsOfTwoAccountsCanBeReadInTurns) {
    {
        Store store = open();
        for (const char* number : {"1", "2"}) {
            RecordNode& account = appendAccount(store.model(), number);
            for (int booking = 1; booking <= 50; ++booking)
                appendBooking(account, booking);
        }
        store.commit();
    }
    Store store = openForReading();
    TableNode& accounts = table(store.model(), "HomeBankingImport");
    for (unsigned row = 1; row <= 50; ++row) {
        for (unsigned account = 1; account <= 2; ++account)
            ASSERT_EQ("B" + std::to_string(row),
                      textOf(*table(*accounts.row(account), "DataSets").row(row), "BuchungsID"));
    }
}

TEST_F(StoreRoundTrip, RowsCanBeReadInAnyOrder) {
    {
        Store store = open();
        appendRecords(store.model(), 1, 100);
        store.commit();
        for (const unsigned row : {90u, 50u, 50u, 1u}) // leaves gaps between the ids
            table(store.model(), "DataSets").remove(table(store.model(), "DataSets").row(row));
        store.commit();
    }
    std::vector<int> expected;
    {
        Store store = openForReading();
        expected = recordNumbers(store.model());
    }
    ASSERT_EQ(96u, expected.size());
    Store backwards = openForReading();
    for (unsigned row = 96; row >= 1; --row)
        ASSERT_EQ(expected[row - 1], get(*table(backwards.model(), "DataSets").row(row), "UniqueID").getInt());
    Store jumping = openForReading();
    for (unsigned i = 0; i < 96; ++i) {
        const unsigned row = i * 37 % 96 + 1;
        ASSERT_EQ(expected[row - 1], get(*table(jumping.model(), "DataSets").row(row), "UniqueID").getInt());
    }
}

TEST_F(StoreRoundTrip, PathMayHoldAnyCharacter) {
    for (const char* name : {"a?mode=memory", "100%41.db", "file:x.db", ":memory:", "a b#c&d.db", "\xFC-latin1.db",
                             "\xC3\xBC-utf8.db", "-x", "'\"; DROP TABLE DataSets; --"}) {
        const std::filesystem::path file = m_folder / name;
        {
            Store store = Store::open(file, Store::Access::readWrite);
            appendRecords(store.model(), 1, 3);
            store.commit();
        }
        ASSERT_TRUE(std::filesystem::is_regular_file(file)) << name;
        Store store = Store::open(file, Store::Access::readOnly);
        EXPECT_EQ((std::vector<int>{1, 2, 3}), recordNumbers(store.model())) << name;
    }
}

TEST_F(StoreRoundTrip, RelativePathIsTakenFromTheCurrentFolder) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.path());
    {
        Store store = Store::open(":memory:", Store::Access::readWrite);
        appendRecords(store.model(), 1, 1);
        store.commit();
    }
    std::filesystem::current_path(before);
    EXPECT_EQ("1", Sql(m_folder / ":memory:").value("SELECT count(*) FROM DataSets"));
}
