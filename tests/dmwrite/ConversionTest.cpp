// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "dmwrite/Importer.h"
#include "framework/datamodel_api/DataModelApi.h"
#include "support/SmartDateFixture.h"

namespace {

using Import::E_ColumnIndex;
using Import::E_HBColumnIndex;

class ConversionTest : public SmartDateFixture {
protected:
    template <typename Index>
    DataType convert(Index column, const std::string& text) const {
        return m_importer.convertStringToDataType(column, text.c_str());
    }

    /// Expects both catalogues to read `text` as that amount, or as the empty value.
    void expectAmount(const std::string& text, double want) const {
        for (const DataType& value : {convert(Import::eColBetrag, text), convert(Import::eHBBetrag, text)}) {
            EXPECT_EQ(value.kind(), DataType::eCurrency) << text;
            EXPECT_EQ(value.getCurrency(), want) << text;
        }
    }
    void expectEmpty(const std::string& text) const {
        EXPECT_EQ(convert(Import::eColBetrag, text).kind(), DataType::eEmpty) << text;
        EXPECT_EQ(convert(Import::eHBBetrag, text).kind(), DataType::eEmpty) << text;
    }

    Importer m_importer;
};

TEST_F(ConversionTest, TextColumnsTakeTheTextUnchanged) {
    const std::string texts[] = {"",
                                 " ",
                                 "Miete",
                                 "  Miete \t",
                                 "Stra\xDF"
                                 "e \xE4\xF6\xFC",
                                 "\"quoted\"",
                                 "12,50",
                                 "1.2.2004",
                                 std::string(4000, 'x')};
    for (const std::string& text : texts) {
        for (const int column : {0, 1, 2, 3, 4}) {
            const DataType value = convert(static_cast<E_ColumnIndex>(column), text);
            EXPECT_EQ(value.kind(), DataType::eString) << column;
            EXPECT_EQ(value.asString(true, 2), text) << column;
        }
        for (const int column : {0, 3, 5, 7, 8, 9}) {
            const DataType value = convert(static_cast<E_HBColumnIndex>(column), text);
            EXPECT_EQ(value.kind(), DataType::eString) << column;
            EXPECT_EQ(value.asString(true, 2), text) << column;
        }
    }
}

TEST_F(ConversionTest, TextValueKeepsItsOwnCopy) {
    for (const std::size_t length : {3U, 100U}) {
        std::string text(length, 'a');
        const DataType value = convert(Import::eColEmpfaenger, text);
        text.assign(length, 'b');
        EXPECT_EQ(value.asString(true, 2), std::string(length, 'a'));
    }
}

TEST_F(ConversionTest, DateColumnsTakeTheDate) {
    for (const DataType& value :
         {convert(Import::eColDatum, "31.12.2004"), convert(Import::eHBBuchungsDatum, "31.12.2004"),
          convert(Import::eHBValutaDatum, "31.12.2004")}) {
        EXPECT_EQ(value.kind(), DataType::eDate);
        EXPECT_EQ(value.getDate(), DMDate(31, 12, 2004));
    }
}

TEST_F(ConversionTest, TextThatIsNoDateBecomesTheZeroDate) {
    for (const char* text : {"", "abc", "20040101", "30.02.2004", "01.02"}) {
        for (const DataType& value : {convert(Import::eColDatum, text), convert(Import::eHBBuchungsDatum, text),
                                      convert(Import::eHBValutaDatum, text)}) {
            EXPECT_EQ(value.kind(), DataType::eDate) << text;
            EXPECT_TRUE(value.getDate().isZero()) << text;
        }
    }
}

TEST_F(ConversionTest, DatesShareTheLearnedOrder) {
    convert(Import::eColDatum, "12/31/2004");
    EXPECT_EQ(SmartDate::sm_order, kMonthFirst);
    EXPECT_EQ(convert(Import::eHBBuchungsDatum, "05/06/2004").getDate(), DMDate(6, 5, 2004));
    EXPECT_TRUE(convert(Import::eColDatum, "31.12.2004").getDate().isZero());
}

TEST_F(ConversionTest, ConvertingADateSwitchesTheQifSyntaxOff) {
    SmartDate::m_useQIFSyntax = true;
    EXPECT_EQ(convert(Import::eColDatum, "1/5'98").getDate(), DMDate(1, 5, 1998));
    EXPECT_FALSE(SmartDate::m_useQIFSyntax);
}

TEST_F(ConversionTest, AmountsAreRead) {
    expectAmount("1.234,56 EUR", 1234.56);
    expectAmount("-20", -20.0);
    expectAmount("", 0.0);
    expectAmount("EUR", 0.0);
}

TEST_F(ConversionTest, TheBoundsThemselvesAreAccepted) {
    ASSERT_EQ(DMCurrency::MAX_CURRENCY, 9'999'999'999'999.99);
    ASSERT_EQ(DMCurrency::MIN_CURRENCY, -9'999'999'999'999.99);
    expectAmount("9.999.999.999.999,99", DMCurrency::MAX_CURRENCY);
    expectAmount("-9.999.999.999.999,99", DMCurrency::MIN_CURRENCY);
    expectAmount("9.999.999.999.999,98", 9'999'999'999'999.98);
}

TEST_F(ConversionTest, OneCentBeyondTheBoundsIsTheEmptyValue) {
    expectEmpty("10.000.000.000.000,00");
    expectEmpty("-10.000.000.000.000,00");
    expectEmpty("9999999999999,995"); // the next thousandth parts are beyond as well
    expectEmpty("-9999999999999,995");
}

TEST_F(ConversionTest, AmountWithoutEndIsTheEmptyValue) {
    expectEmpty(std::string(4000, '9'));
    expectEmpty("-" + std::string(4000, '9'));
    expectAmount("0," + std::string(400, '0') + "1", 0.0);
}

TEST_F(ConversionTest, TaxFlagIsTrueForTheTextOneAlone) {
    struct Case {
        const char* text;
        bool want;
    };
    const Case cases[] = {{"1", true},   {"0", false},  {"", false},   {"true", false}, {" 1", false}, {"1 ", false},
                          {"01", false}, {"11", false}, {"Ja", false}, {"2", false},    {"-1", false}};
    for (const Case& c : cases) {
        const DataType value = convert(Import::eHBSteuerrelevant, c.text);
        EXPECT_EQ(value.kind(), DataType::eBoolean) << '"' << c.text << '"';
        EXPECT_EQ(value.getBoolean(), c.want) << '"' << c.text << '"';
    }
}

TEST_F(ConversionTest, NumberOutsideTheCatalogueIsTheEmptyValue) {
    for (const int column : {7, 8, 99, -1, INT_MAX, INT_MIN})
        EXPECT_EQ(convert(static_cast<E_ColumnIndex>(column), "1").kind(), DataType::eEmpty) << column;
    for (const int column : {10, 11, 99, -1, INT_MAX, INT_MIN})
        EXPECT_EQ(convert(static_cast<E_HBColumnIndex>(column), "1").kind(), DataType::eEmpty) << column;
}

TEST_F(ConversionTest, ColumnNameSelectsTheConversion) {
    EXPECT_EQ(convert("Empfaenger", "12,50").kind(), DataType::eString);
    EXPECT_EQ(convert("Kategorie", "12,50").kind(), DataType::eString);
    EXPECT_EQ(convert("Unterkategorie", "12,50").kind(), DataType::eString);
    EXPECT_EQ(convert("Verwendungszweck", "12,50").kind(), DataType::eString);
    EXPECT_EQ(convert("Buchungstext", "12,50").kind(), DataType::eString);
    EXPECT_EQ(convert("Datum", "1.2.2004").getDate(), DMDate(1, 2, 2004));
    EXPECT_EQ(convert("Betrag", "12,50").getCurrency(), 12.5);
}

TEST_F(ConversionTest, UnknownColumnNameIsTheEmptyValue) {
    for (const char* name : {"betrag", "", "Notiz", "Steuerrelevant"})
        EXPECT_EQ(convert(name, "1").kind(), DataType::eEmpty) << name;
}

} // namespace
