// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>
#include <QtXml/QDomDocument>

#include "framework/Latin1.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/XmlNames.h"

namespace {

using namespace HomeBankingXml;

class BookingListTest : public HomeBankingFixture<BankingXML> {
protected:
    bool importList(const std::string& inside) { return importBookings(buchungsliste(inside)); }
    std::string booking(int row, const char* column) const {
        return account("DataSets/" + std::to_string(row) + "/" + column);
    }
    DataType::E_Kind bookingKind(int row, const char* column) const {
        return m_model.kind(kAccount + ("DataSets/" + std::to_string(row) + "/") + column);
    }

    /// What a successful import writes into the account was not written.
    void expectNoBookkeeping() const {
        for (const char* field : {"LetztesImportDatum", "LetzteBuchungsId", "NeueBuchungen"})
            EXPECT_EQ(m_model.kind(std::string(kAccount) + field), DataType::eEmpty) << field;
    }
};

TEST_F(BookingListTest, EveryElementFeedsItsColumn) {
    EXPECT_TRUE(importList("<buchung><id>A1</id><datum>31.12.2004</datum><valuta>02.01.2005</valuta>"
                           "<gvcode>051</gvcode><betrag>-1.234,56</betrag>"
                           "<verwendungszweck>Miete Januar</verwendungszweck><steuerrelevant>1</steuerrelevant>"
                           "<empfaenger>Hausverwaltung Müller</empfaenger><notiz>pünktlich</notiz>"
                           "<kategorie>Wohnen</kategorie></buchung>"));
    const struct {
        const char* column;
        const char* value;
        DataType::E_Kind kind;
    } kColumns[] = {
        {"BuchungsID", "A1", DataType::eString},
        {"BuchungsDatum", "31.12.2004", DataType::eDate},
        {"ValutaDatum", "02.01.2005", DataType::eDate},
        {"GVCode", "051", DataType::eString},
        {"Betrag", "-1.234,56", DataType::eCurrency},
        {"Verwendungszweck", "Miete Januar", DataType::eString},
        {"Steuerrelevant", "Ja", DataType::eBoolean},
        {"Empfaenger", "Hausverwaltung Müller"_latin1, DataType::eString},
        {"Notiz", "pünktlich"_latin1, DataType::eString},
        {"Kategorie", "Wohnen", DataType::eString},
        {"UniqueID", "1", DataType::eInteger},
    };
    ASSERT_EQ(bookings(), 1);
    for (const auto& column : kColumns) {
        EXPECT_EQ(booking(1, column.column), column.value) << column.column;
        EXPECT_EQ(bookingKind(1, column.column), column.kind) << column.column;
    }
    EXPECT_EQ(error(), "");
}

TEST_F(BookingListTest, BookingsFollowTheExistingOnesAndTheAccountKeepsBooksOfThem) {
    ASSERT_TRUE(importList(buchung("alt")));
    const std::string before = utcToday();
    EXPECT_TRUE(importList(buchung("1") + buchung("2") + buchung("3")));
    const std::string after = utcToday();
    ASSERT_EQ(bookings(), 4);
    EXPECT_EQ(booking(2, "BuchungsID"), "1");
    EXPECT_EQ(booking(4, "BuchungsID"), "3");
    EXPECT_EQ(account("NeueBuchungen"), "3");
    EXPECT_EQ(account("LetzteBuchungsId"), "3");
    const std::string date = account("LetztesImportDatum");
    EXPECT_TRUE(date == before || date == after) << date;
}

TEST_F(BookingListTest, SameDocumentTwiceAddsItsBookingsTwice) {
    const std::string list = buchung("1") + buchung("2");
    EXPECT_TRUE(importList(list));
    EXPECT_TRUE(importList(list));
    EXPECT_EQ(bookings(), 4);
    EXPECT_EQ(booking(3, "BuchungsID"), "1");
    EXPECT_EQ(account("NeueBuchungen"), "2");
}

TEST_F(BookingListTest, UniqueIdsGoOnOverAllImports) {
    m_model.set("NextUniqueID", DataType::makeInteger(17));
    EXPECT_TRUE(importList(buchung("1") + buchung("2")));
    EXPECT_TRUE(importList(buchung("3")));
    EXPECT_EQ(booking(1, "UniqueID"), "17");
    EXPECT_EQ(booking(2, "UniqueID"), "18");
    EXPECT_EQ(booking(3, "UniqueID"), "19");
    EXPECT_EQ(m_model.integer("NextUniqueID"), 20);
}

TEST_F(BookingListTest, FileImportsMarkersAreNotTouched) {
    EXPECT_TRUE(importList(buchung("1")));
    EXPECT_EQ(m_model.rows("DataSets"), 0);
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
    EXPECT_EQ(m_model.integer("NextImportID"), 1);
    EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eEmpty);
    EXPECT_EQ(m_model.kind("NeueDatenVorhanden"), DataType::eEmpty);
}

TEST_F(BookingListTest, AccountIsTheOneThatTheListNames) {
    addAccount(m_model, "100", "42", "Sparbuch");
    EXPECT_TRUE(
        importBookings(document("<buchungsliste ktonr=\"42\" blz=\"100\">" + buchung("1") + "</buchungsliste>")));
    EXPECT_EQ(bookings(), 0);
    EXPECT_EQ(m_model.rows("HomeBankingImport/2/DataSets"), 1);
    expectNoBookkeeping();
}

TEST_F(BookingListTest, LastBookingWithoutIdLeavesTheStoredOne) {
    ASSERT_TRUE(importList(buchung("alt")));
    m_model.set("HomeBankingImport/1/LetztesImportDatum", dateValue(1, 1, 2000));
    EXPECT_TRUE(importList(buchung("1") + "<buchung><betrag>1,00</betrag></buchung>"));
    EXPECT_EQ(account("LetzteBuchungsId"), "alt") << "not the first booking's either";
    EXPECT_EQ(account("NeueBuchungen"), "2");
    EXPECT_NE(account("LetztesImportDatum"), "01.01.2000");
    EXPECT_EQ(bookingKind(3, "BuchungsID"), DataType::eEmpty);
}

TEST_F(BookingListTest, AbsentAndEmptyElementsLeaveTheirColumnsUnwritten) {
    EXPECT_TRUE(importList("<buchung/><buchung><id/><datum/><valuta></valuta><gvcode/><betrag/><verwendungszweck> "
                           "</verwendungszweck><steuerrelevant/><empfaenger/><notiz/><kategorie/></buchung>"));
    ASSERT_EQ(bookings(), 2);
    for (int row = 1; row <= 2; ++row) {
        for (const char* column : {"BuchungsID", "BuchungsDatum", "ValutaDatum", "GVCode", "Betrag", "Verwendungszweck",
                                   "Steuerrelevant", "Empfaenger", "Notiz", "Kategorie"})
            EXPECT_EQ(bookingKind(row, column), DataType::eEmpty) << row << " " << column;
        EXPECT_EQ(booking(row, "UniqueID"), std::to_string(row));
    }
    EXPECT_EQ(account("NeueBuchungen"), "2");
    EXPECT_EQ(m_model.kind("HomeBankingImport/1/LetzteBuchungsId"), DataType::eEmpty);
}

TEST_F(BookingListTest, OfSeveralElementsWithOneNameTheFirstCounts) {
    EXPECT_TRUE(importList("<buchung>x<notiz/><!-- c --><id>1</id><id>2</id><b:id xmlns:b=\"b\">3</b:id>"
                           "<notiz>spät</notiz><betrag>1,00</betrag><betrag>zwei</betrag></buchung>"));
    EXPECT_EQ(booking(1, "BuchungsID"), "1");
    EXPECT_EQ(bookingKind(1, "Notiz"), DataType::eEmpty) << "the first one is empty";
    EXPECT_EQ(booking(1, "Betrag"), "1,00");
}

TEST_F(BookingListTest, HostsMayCallElementsOtherwise) {
    const char* const tag = g_tagNotiz;
    g_tagNotiz = "kategorie"; // one element may feed two fields
    EXPECT_TRUE(importList("<buchung><id>1</id><notiz>N</notiz><kategorie>K</kategorie></buchung>"));
    g_tagNotiz = "";
    EXPECT_TRUE(importList("<buchung><gvcode>051</gvcode><id>2</id></buchung>"));
    g_tagNotiz = tag;
    EXPECT_EQ(booking(1, "Notiz"), "K");
    EXPECT_EQ(booking(1, "Kategorie"), "K");
    EXPECT_EQ(booking(2, "Notiz"), "051") << "without a name any element is the one";
}

TEST_F(BookingListTest, BookingWithoutAmountIsCounted) {
    EXPECT_TRUE(importList(buchung("1", "<datum>01.02.2026</datum>")));
    EXPECT_EQ(bookingKind(1, "Betrag"), DataType::eEmpty);
    EXPECT_EQ(account("NeueBuchungen"), "1");
}

TEST_F(BookingListTest, TaxFlagIsTrueForOneAlone) {
    const struct {
        const char* element;
        const char* stored;
    } kFlags[] = {
        {"<steuerrelevant>1</steuerrelevant>", "Ja"},
        {"<steuerrelevant>0</steuerrelevant>", "Nein"},
        {"<steuerrelevant>true</steuerrelevant>", "Nein"},
        {"<steuerrelevant>01</steuerrelevant>", "Nein"},
        {"<steuerrelevant> 1</steuerrelevant>", "Nein"},
        {"<steuerrelevant/>", ""},
        {"", ""},
    };
    int row = 0;
    for (const auto& flag : kFlags) {
        EXPECT_TRUE(importList(buchung("1", flag.element))) << flag.element;
        EXPECT_EQ(booking(++row, "Steuerrelevant"), flag.stored) << flag.element;
    }
}

TEST_F(BookingListTest, AmountsAreReadInBothNotations) {
    EXPECT_TRUE(importList(buchung("1", "<betrag>1.234,56 EUR</betrag>") + buchung("2", "<betrag>1,234.56</betrag>") +
                           buchung("3", "<betrag>12,50-</betrag>") + buchung("4", "<betrag>EUR</betrag>")));
    EXPECT_EQ(booking(1, "Betrag"), "1.234,56");
    EXPECT_EQ(booking(2, "Betrag"), "1.234,56");
    EXPECT_EQ(booking(3, "Betrag"), "12,50") << "a minus behind is lost";
    EXPECT_EQ(booking(4, "Betrag"), "0,00");
}

TEST_F(BookingListTest, AmountBeyondTheBoundsIsRefusedByTheModel) {
    EXPECT_TRUE(importList(buchung("1", "<betrag>9.999.999.999.999,99</betrag>")));
    EXPECT_FALSE(importList(buchung("2", "<betrag>99.999.999.999.999,99</betrag><notiz>n</notiz>")));
    EXPECT_EQ(error(), "");
    EXPECT_EQ(bookings(), 2);
    EXPECT_EQ(bookingKind(2, "Betrag"), DataType::eEmpty);
}

TEST_F(BookingListTest, ValueDateIsWrittenBeforeTheBookingDate) {
    EXPECT_FALSE(importList(buchung("1", "<datum>31.02.2026</datum><valuta>01.03.2026</valuta><gvcode>051</gvcode>")));
    ASSERT_EQ(bookings(), 1);
    EXPECT_EQ(booking(1, "BuchungsID"), "1");
    EXPECT_EQ(booking(1, "ValutaDatum"), "01.03.2026");
    EXPECT_EQ(bookingKind(1, "BuchungsDatum"), DataType::eEmpty);
    EXPECT_EQ(bookingKind(1, "GVCode"), DataType::eEmpty) << "nothing is written behind the failing column";
}

TEST_F(BookingListTest, DateOrderIsLearnedFromTheValueDateFirst) {
    // The value date proves month first before the booking date is read.
    EXPECT_TRUE(importList(buchung("1", "<datum>03/04/2026</datum><valuta>03/31/2026</valuta>")));
    EXPECT_EQ(booking(1, "BuchungsDatum"), "04.03.2026");
}

TEST_F(BookingListTest, BookingThatCannotBeStoredEndsTheList) {
    EXPECT_FALSE(importList(buchung("1", "<datum>01.02.2026</datum>") +
                            buchung("2", "<datum>kein Tag</datum><notiz>n</notiz>") + buchung("3")));
    EXPECT_EQ(error(), "");
    ASSERT_EQ(bookings(), 2);
    EXPECT_EQ(booking(1, "UniqueID"), "1");
    EXPECT_EQ(booking(2, "BuchungsID"), "2");
    EXPECT_EQ(bookingKind(2, "Notiz"), DataType::eEmpty);
    EXPECT_EQ(bookingKind(2, "UniqueID"), DataType::eEmpty);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 2);
    expectNoBookkeeping();
}

TEST_F(BookingListTest, StrangerAmongTheBookingsEndsTheList) {
    const struct {
        const char* stranger;
        const char* why;
    } kEndings[] = {
        {"<!-- ein Kommentar -->", "a comment"},
        {"<saldo>1,00</saldo>", "another element"},
        {"<Buchung/>", "case counts"},
        {"lose Worte", "a text"},
        {"<?pi x?>", "a processing instruction"},
        {"<h:buchung xmlns:h=\"urn:x\"/>", "a prefix is part of the name here"},
    };
    int expected = 0;
    for (const auto& ending : kEndings) {
        SCOPED_TRACE(ending.why);
        EXPECT_FALSE(importList(buchung("1") + ending.stranger + buchung("2")));
        EXPECT_EQ(error(), "");
        EXPECT_EQ(bookings(), ++expected) << "the one before stays";
        expectNoBookkeeping();

        EXPECT_FALSE(importList(ending.stranger + buchung("1")));
        EXPECT_EQ(bookings(), expected);
    }
}

TEST_F(BookingListTest, EmptyListIsDoneWithoutLookingAtTheAccount) {
    for (const char* list : {"<buchungsliste/>", "<buchungsliste blz=\"0\" ktonr=\"0\"></buchungsliste>",
                             "<buchungsliste blz=\"10020030\" ktonr=\"123456789\">\n \n</buchungsliste>"})
        EXPECT_TRUE(importBookings(document(list))) << list;
    EXPECT_EQ(error(), "");
    expectNoBookkeeping();
}

TEST_F(BookingListTest, NullListIsDone) { EXPECT_TRUE(m_door.importBuchnungen(QDomElement())); }

TEST_F(BookingListTest, UnknownAccount) {
    const char* const kLists[] = {
        "blz=\"10020030\" ktonr=\"1\"",
        "blz=\"1\" ktonr=\"123456789\"",
        "blz=\"010020030\" ktonr=\"123456789\"",
        "blz=\"10020030\" ktonr=\" 123456789\"",
        "blz=\"10020030\"",
        "ktonr=\"123456789\"",
        "BLZ=\"10020030\" KtoNr=\"123456789\"",
        "",
    };
    for (const char* attributes : kLists) {
        BankingXML banking;
        const std::string list =
            document("<buchungsliste " + std::string(attributes) + ">" + buchung("1") + "</buchungsliste>");
        EXPECT_FALSE(banking.importAccountingEntries(input(list))) << attributes;
        EXPECT_STREQ(banking.getErrorMsg(), "Unbekanntes Konto.") << attributes;
    }
    EXPECT_EQ(bookings(), 0);
    EXPECT_EQ(accounts(), 1);
}

TEST_F(BookingListTest, AccountNamedByChildElementsIsUnknown) {
    EXPECT_FALSE(importBookings(
        document("<buchungsliste><blz>10020030</blz><ktonr>123456789</ktonr>" + buchung("1") + "</buchungsliste>")));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
}

TEST_F(BookingListTest, AccountStoredWithoutBankCodeOrNumberIsFoundAndRefused) {
    addAccount(m_model, "", "7", "ohne BLZ");
    addAccount(m_model, "7", "", "ohne Nummer");
    for (const char* attributes : {"ktonr=\"7\"", "blz=\"\" ktonr=\"7\"", "blz=\"7\"", "blz=\"7\" ktonr=\"\""}) {
        BankingXML banking;
        const std::string list =
            document("<buchungsliste " + std::string(attributes) + ">" + buchung("1") + "</buchungsliste>");
        EXPECT_FALSE(banking.importAccountingEntries(input(list))) << attributes;
        EXPECT_STREQ(banking.getErrorMsg(), "") << attributes;
    }
    EXPECT_EQ(m_model.rows("HomeBankingImport/2/DataSets"), 0);
    EXPECT_EQ(m_model.rows("HomeBankingImport/3/DataSets"), 0);
}

TEST_F(BookingListTest, EarlierErrorTextStaysBehindAFailureWithoutOne) {
    ASSERT_FALSE(importBookings(document("<buchungsliste blz=\"1\">" + buchung("1") + "</buchungsliste>")));
    EXPECT_FALSE(importList("<!-- -->" + buchung("1")));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
    EXPECT_TRUE(importList(buchung("1")));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
}

TEST_F(BookingListTest, FullTableTakesNoMoreBookings) {
    auto* table = dynamic_cast<NodeTable*>(m_model.node("HomeBankingImport/1/DataSets"));
    for (unsigned row = 1; row < 65535; ++row)
        ASSERT_NE(table->create(static_cast<unsigned short>(row)), 0);
    EXPECT_FALSE(importList(buchung("letzte") + buchung("zu viel")));
    EXPECT_EQ(error(), "");
    EXPECT_EQ(table->getNodeCount(), 65535);
    EXPECT_EQ(booking(65535, "BuchungsID"), "letzte");
    EXPECT_EQ(m_model.integer("NextUniqueID"), 2) << "no ID for what was not stored";
    expectNoBookkeeping();
}

class ImportValueTest : public BookingListTest {
protected:
    ImportValueTest() {
        m_door.openFileAndParseXml(input(""), BankingXML::AccountingEntries); // takes the target
        m_row = m_door.createNewDataSet(m_model.node("HomeBankingImport/1"));
    }
    Node* m_row;
};

TEST_F(ImportValueTest, NewRowIsTheTablesNextAndEmpty) {
    EXPECT_EQ(m_row, m_model.node("HomeBankingImport/1/DataSets/1"));
    Node* next = m_door.createNewDataSet(m_model.node("HomeBankingImport/1"));
    EXPECT_EQ(next, m_model.node("HomeBankingImport/1/DataSets/2"));
    EXPECT_EQ(bookingKind(1, "BuchungsID"), DataType::eEmpty);
}

TEST_F(ImportValueTest, NullAndEmptyTextWriteNothing) {
    m_model.set("HomeBankingImport/1/DataSets/1/Notiz", textValue("vom Wirt"));
    EXPECT_TRUE(m_door.importValue(m_row, Import::eHBNotiz, QString()));
    EXPECT_TRUE(m_door.importValue(m_row, Import::eHBNotiz, QString("")));
    EXPECT_EQ(booking(1, "Notiz"), "vom Wirt");
}

TEST_F(ImportValueTest, UnknownColumnFails) {
    for (const int column : {-1, 10, 99})
        EXPECT_FALSE(m_door.importValue(m_row, static_cast<Import::E_HBColumnIndex>(column), "x")) << column;
}

TEST_F(ImportValueTest, RefusedValueFails) {
    EXPECT_FALSE(m_door.importValue(m_row, Import::eHBBuchungsDatum, "kein Tag"));
    EXPECT_TRUE(m_door.importValue(m_row, Import::eHBBuchungsDatum, "1.2.2026"));
}

TEST_F(ImportValueTest, BookingKeepsItsIdInMindEvenWhenItFails) {
    ASSERT_TRUE(importList(buchung("alt")));
    QDomDocument document;
    document.setContent(QByteArray("<buchung><id>neu</id><datum>nie</datum></buchung>"), true);
    EXPECT_FALSE(m_door.importBuchnung(document.documentElement(), m_model.node("HomeBankingImport/1")));
    EXPECT_TRUE(m_door.writeImportAccountInfo(m_model.node("HomeBankingImport/1")));
    EXPECT_EQ(account("LetzteBuchungsId"), "neu");
    EXPECT_EQ(account("NeueBuchungen"), "1") << "the count is the list's";
}

} // namespace
