// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <type_traits>

#include "framework/datamodel_api/DataModelApi.h"
#include "support/CountingNode.h"
#include "support/FinanceModel.h"
#include "support/SmartDateFixture.h"

namespace {

static_assert(!std::is_polymorphic_v<SmartDate>);
static_assert(std::is_same_v<decltype(SmartDate::sm_CenturyWindowStart), unsigned short>);

class SmartDateTest : public SmartDateFixture {};

TEST_F(SmartDateTest, ReadsThreeNumbersBetweenSeparators) {
    struct Case {
        const char* text;
        DMDate want;
        const char* why;
    };
    const Case cases[] = {
        {"05.06.2004", {5, 6, 2004}, "dots"},
        {"05-06-2004", {5, 6, 2004}, "dashes"},
        {"05/06/2004", {5, 6, 2004}, "slashes"},
        {"05'06'2004", {5, 6, 2004}, "apostrophes"},
        {"05.06/2004", {5, 6, 2004}, "separators may be mixed"},
        {"5.6.2004", {5, 6, 2004}, "single digits"},
        {"005.0006.2004", {5, 6, 2004}, "leading zeros"},
        {"31. 12. 2004", {31, 12, 2004}, "blanks are skipped"},
        {"  1 . 2 . 2 0 0 4 ", {1, 2, 2004}, "a blank does not end a number"},
        {"am 1.2.2004 um", {1, 2, 2004}, "letters are skipped"},
        {"1a2.1b1.20x04", {12, 11, 2004}, "even inside a number"},
        {"+1.,2.2004\xA0", {1, 2, 2004}, "sign, comma and bytes above 127, too"},
        {"1.2.2004.7", {1, 2, 2004}, "what follows the third separator is ignored"},
        {"1.2.2004.7.8.9.10", {1, 2, 2004}, "however much it is"},
        {"1.2.2004.", {1, 2, 2004}, "a separator at the end"},
        {"29.02.2004", {29, 2, 2004}, "leap day"},
        {"1.2.9999", {1, 2, 9999}, "last year that exists"},
        {"1.2.001", {1, 2, 1}, "three digits stand as they are"},
        {"01.02.", {1, 2, 2000}, "an empty year is the year 2000"},
        {"01.02..", {1, 2, 2000}, "also before a third separator"},
        {"01.02. EUR", {1, 2, 2000}, "also with text behind"},
    };
    for (const Case& c : cases) {
        reset();
        SmartDate date;
        EXPECT_TRUE(date.parse(c.text)) << c.text << ": " << c.why;
        EXPECT_TRUE(date.isValid()) << c.text << ": " << c.why;
        EXPECT_EQ(date.getDate(), c.want) << c.text << ": " << c.why;
    }
}

TEST_F(SmartDateTest, TextsThatAreNoDateAreInvalidAndYieldTheZeroDate) {
    struct Case {
        const char* text;
        const char* why;
    };
    const Case cases[] = {
        {"01.02", "one separator"},
        {"20040101", "no separator"},
        {"12 03 2004", "blanks do not separate: one number"},
        {" ", "blank only"},
        {"abc", "letters only"},
        {"..", "three empty numbers: day and month 0"},
        {".2.2004", "an empty day is 0"},
        {"1..2004", "an empty month is 0"},
        {"30.02.2004", "no such day in February"},
        {"29.02.2003", "no leap year"},
        {"31.04.2004", "no such day in April"},
        {"0.1.2004", "day 0"},
        {"1.0.2004", "month 0"},
        {"45.1.2004", "day 45 is left to the calendar"},
        {"1.2.0000", "year 0 does not exist"},
        {"1.2.10000", "years end with 9999"},
        {"31.13.2004", "second number fits neither order once the first fixed day first"},
        {"13.13.2004", "both above 12"},
    };
    for (const Case& c : cases) {
        reset();
        SmartDate date;
        EXPECT_FALSE(date.parse(c.text)) << c.text << ": " << c.why;
        EXPECT_FALSE(date.isValid()) << c.text << ": " << c.why;
        EXPECT_EQ(date.getDate(), kNoDate) << c.text << ": " << c.why;
        EXPECT_TRUE(date.getDate().isZero()) << c.text << ": " << c.why;
    }
}

TEST_F(SmartDateTest, NullAndEmptyTextLeaveTheObjectUnchanged) {
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        SmartDate date;
        ASSERT_TRUE(date.parse("1.2.2004"));
        EXPECT_FALSE(date.parse(text));
        EXPECT_TRUE(date.isValid());
        EXPECT_EQ(date.getDate(), DMDate(1, 2, 2004));
    }
}

TEST_F(SmartDateTest, FreshObjectHoldsNoDay) {
    const SmartDate date;
    EXPECT_FALSE(date.isValid());
    EXPECT_EQ(date.getDate(), kNoDate);
    EXPECT_EQ(date.asString(), "00.00.0000");
}

TEST_F(SmartDateTest, ParseDoesNotClearSoThatAnInvalidDateStaysInvalid) {
    for (const char* text : {"20040101", "01.02"}) {
        SmartDate date;
        EXPECT_FALSE(date.parse(text)) << text;
        EXPECT_FALSE(date.parse("1.2.2004")) << text;
        date.clear();
        EXPECT_TRUE(date.parse("1.2.2004")) << text;
    }
}

TEST_F(SmartDateTest, ClearEmptiesTheNumbers) {
    SmartDate date;
    ASSERT_TRUE(date.parse("1.2.2004"));
    date.clear();
    EXPECT_EQ(date.asString(), "00.00.0000");
    EXPECT_FALSE(date.isValid());
}

TEST_F(SmartDateTest, ClearForgetsTheApostropheAndKeepsTheQifSyntax) {
    SmartDate date;
    SmartDate::m_useQIFSyntax = true;
    ASSERT_TRUE(date.parse("1/5'98"));
    date.clear();
    EXPECT_TRUE(SmartDate::m_useQIFSyntax);
    ASSERT_TRUE(date.parse("1/5/98"));
    EXPECT_EQ(date.getDate(), DMDate(1, 5, 1998));
}

TEST_F(SmartDateTest, ApostropheOfAnEarlierDateCountsUntilCleared) {
    SmartDate date;
    SmartDate::m_useQIFSyntax = true;
    ASSERT_TRUE(date.parse("1/5'98"));
    ASSERT_TRUE(date.parse("1/5/98"));
    EXPECT_EQ(date.getDate(), DMDate(1, 5, 2098));
}

TEST_F(SmartDateTest, ApostropheCountsOnlyWhileTheQifSyntaxIsOn) {
    SmartDate seenWhileOn;
    SmartDate::m_useQIFSyntax = true;
    ASSERT_TRUE(seenWhileOn.parse("1/5'98"));
    SmartDate::m_useQIFSyntax = false;
    ASSERT_TRUE(seenWhileOn.parse("1/5/98"));
    EXPECT_EQ(seenWhileOn.getDate(), DMDate(1, 5, 1998));

    SmartDate seenWhileOff;
    ASSERT_TRUE(seenWhileOff.parse("1/5'98"));
    SmartDate::m_useQIFSyntax = true;
    ASSERT_TRUE(seenWhileOff.parse("1/5/98"));
    EXPECT_EQ(seenWhileOff.getDate(), DMDate(1, 5, 1998));
}

TEST_F(SmartDateTest, TwoDigitYearsAreWidenedByTheCenturyWindow) {
    struct Case {
        unsigned short window;
        const char* text;
        unsigned year;
        const char* why;
    };
    const Case cases[] = {
        {30, "1.2.30", 2030, "the window itself still lies in the 2000s"},
        {30, "1.2.31", 1931, "above the window"},
        {30, "1.2.00", 2000, "00"},
        {30, "1.2.0", 2000, "one digit"},
        {30, "1.2.3", 2003, "one digit"},
        {30, "1.2.99", 1999, "last of the 1900s"},
        {30, "1.2.098", 98, "three digits stand"},
        {30, "1.2.0098", 98, "four digits stand"},
        {30, "1.2.2004", 2004, "four digits"},
        {0, "1.2.00", 2000, "a window of 0 leaves 00 alone in the 2000s"},
        {0, "1.2.01", 1901, "above a window of 0"},
        {99, "1.2.99", 2099, "a window of 99 knows no 1900s"},
        {65535, "1.2.99", 2099, "compared as signed numbers"},
        {65535, "1.2.1999", 1999, "four digits are never widened"},
    };
    for (const Case& c : cases) {
        reset();
        SmartDate::sm_CenturyWindowStart = c.window;
        EXPECT_EQ(read(c.text), DMDate(1, 2, c.year)) << c.text << " with window " << c.window << ": " << c.why;
    }
}

TEST_F(SmartDateTest, ApostropheBeforeATwoDigitYearMeansThe2000sInQifSyntax) {
    struct Case {
        const char* text;
        DMDate want;
        const char* why;
    };
    const Case cases[] = {
        {"1/5'98", {1, 5, 2098}, "above the window all the same"},
        {"1/5'45", {1, 5, 2045}, "above the window all the same"},
        {"1/5'05", {1, 5, 2005}, "within the window: not widened twice"},
        {"1/5'30", {1, 5, 2030}, "the window itself"},
        {"1/5'5", {1, 5, 2005}, "one digit"},
        {"1/5'", {1, 5, 2000}, "an empty year"},
        {"1/5'2004", {1, 5, 2004}, "four digits stand"},
        {"1/5'098", {1, 5, 98}, "three digits stand"},
        {"1'5/98", {1, 5, 1998}, "as first separator the apostrophe only separates"},
        {"1/5/98'", {1, 5, 1998}, "as third as well"},
        {"1/5/98", {1, 5, 1998}, "no apostrophe"},
        {"1'5'98", {1, 5, 2098}, "first and second separator"},
    };
    for (const Case& c : cases) {
        reset();
        EXPECT_EQ(readQif(c.text), c.want) << c.text << ": " << c.why;
    }
}

TEST_F(SmartDateTest, WindowBeyond2000WidensAQifYearTwice) {
    // The window is compared with the year that the apostrophe already widened.
    SmartDate::sm_CenturyWindowStart = 2005;
    EXPECT_EQ(readQif("1/5'05"), DMDate(1, 5, 4005));
    EXPECT_EQ(readQif("1/5'06"), DMDate(1, 5, 2006));
}

TEST_F(SmartDateTest, WithoutQifSyntaxTheApostropheOnlySeparates) {
    EXPECT_EQ(read("1/5'98"), DMDate(1, 5, 1998));
    EXPECT_EQ(read("1/5'05"), DMDate(1, 5, 2005));
}

TEST_F(SmartDateTest, MakingAnyDateSwitchesTheQifSyntaxOffForAll) {
    SmartDate first;
    SmartDate::m_useQIFSyntax = true;
    const SmartDate second;
    EXPECT_FALSE(SmartDate::m_useQIFSyntax);
    ASSERT_TRUE(first.parse("1/5'98"));
    EXPECT_EQ(first.getDate(), DMDate(1, 5, 1998));
}

TEST_F(SmartDateTest, NumbersOfAnyLengthAreDefined) {
    const std::string huge(4000, '9');
    const std::string zeros(4000, '0');
    EXPECT_EQ(read((huge + ".1.2004").c_str()), kNoDate);
    EXPECT_EQ(SmartDate::sm_order, kDayFirst) << "a huge first number is above 12";
    reset();
    EXPECT_EQ(read(("1." + huge + ".2004").c_str()), kNoDate);
    EXPECT_EQ(SmartDate::sm_order, kMonthFirst);
    reset();
    EXPECT_EQ(read(("1.2." + huge).c_str()), kNoDate);
    EXPECT_EQ(read("1.2.2147483647"), kNoDate);
    EXPECT_EQ(read("1.2.2147483648"), kNoDate) << "one beyond the largest int";
    EXPECT_EQ(read("1.2.4294969300"), kNoDate) << "2004 if it wrapped";
    EXPECT_EQ(read((huge + "." + huge + "." + huge).c_str()), kNoDate);
    reset();
    EXPECT_EQ(read((zeros + "1." + zeros + "2." + zeros + "2004").c_str()), DMDate(1, 2, 2004)) << "zeros in front";
    std::string separators(100'000, '.');
    EXPECT_EQ(read(("1.2.2004." + separators).c_str()), DMDate(1, 2, 2004));
}

TEST_F(SmartDateTest, HugeNumbersPrintWhole) {
    SmartDate date;
    date.setNumber(0, "2147483647");
    date.setNumber(1, "2147483647");
    date.setNumber(2, "2147483647");
    EXPECT_EQ(date.asString(), "2147483647.2147483647.2147483647");
}

TEST_F(SmartDateTest, NumberTooLargeForAnIntIsTheLargest) {
    SmartDate date;
    date.parse("1.2.2147483648");
    EXPECT_EQ(date.asString(), "01.02.2147483647");
    date.parse(("1.2." + std::string(500, '9')).c_str());
    EXPECT_EQ(date.asString(), "01.02.2147483647");
}

TEST_F(SmartDateTest, ASignCountsAsAPlace) {
    SmartDate date;
    date.setNumber(0, "-5");
    date.setNumber(1, "-2147483648");
    date.setNumber(2, "-50");
    EXPECT_EQ(date.asString(), "-5.-2147483648.-050");
}

TEST_F(SmartDateTest, PrintsItsNumbersInTheOrderOfTheFile) {
    struct Case {
        const char* text;
        const char* want;
    };
    const Case cases[] = {
        {"12/31/2004", "12.31.2004"}, // month first: the month is printed first
        {"31.12.2004", "31.12.2004"},       {"1.2.3", "01.02.2003"},  {"1.2.098", "01.02.0098"},
        {"100.200.30000", "100.200.30000"}, {"01.02.", "01.02.2000"}, {"7", "00.00.0000"},
    };
    for (const Case& c : cases) {
        reset();
        SmartDate date;
        date.parse(c.text);
        EXPECT_EQ(date.asString(), c.want) << c.text;
    }
}

TEST_F(SmartDateTest, SetNumberReadsTheNumberAtTheStartOfItsText) {
    struct Case {
        const char* text;
        const char* want;
        const char* why;
    };
    const Case cases[] = {
        {"12", "12.00.0000", "digits"},
        {" \t\n\v\f\r12", "12.00.0000", "white space before the number"},
        {"+12", "12.00.0000", "a plus"},
        {"-5", "-5.00.0000", "a minus"},
        {"+-5", "00.00.0000", "one sign at most"},
        {"12x34", "12.00.0000", "it ends at the first byte that does not fit"},
        {"1 2", "01.00.0000", "even at a blank"},
        {"x12", "00.00.0000", "no number at the start"},
        {"", "00.00.0000", "no number at all"},
        {"-99999999999", "-2147483648.00.0000", "below every int: the smallest"},
        {"99999999999999999999999", "2147483647.00.0000", "above every int: the largest"},
    };
    for (const Case& c : cases) {
        SmartDate date;
        date.setNumber(0, c.text);
        EXPECT_EQ(date.asString(), c.want) << c.why;
    }
}

TEST_F(SmartDateTest, SetNumberIgnoresPositionsThatNoDateHas) {
    SmartDate date;
    for (const int index : {3, 4, 1000, -1})
        date.setNumber(index, "77");
    EXPECT_EQ(date.asString(), "00.00.0000");
    EXPECT_EQ(SmartDate::sm_order, kUnknown);
}

TEST_F(SmartDateTest, CenturyWindowComesFromTheNodesSchema) {
    const DataModel model(makeFinanceSchema(), 77);
    SmartDate::setupCenturyStart(&model.root());
    EXPECT_EQ(SmartDate::getCenturyWindowStart(), 77);
    EXPECT_EQ(SmartDate::sm_CenturyWindowStart, 77);
    EXPECT_EQ(read("1.2.77"), DMDate(1, 2, 2077));

    SmartDate::setupCenturyStart(nullptr);
    EXPECT_EQ(SmartDate::getCenturyWindowStart(), 77) << "no node leaves the window as it was";
}

TEST_F(SmartDateTest, NodeWithoutSchemaLeavesTheCenturyWindow) {
    SmartDate::sm_CenturyWindowStart = 44;
    CountingNode node; // a host's node that belongs to no schema
    SmartDate::setupCenturyStart(&node);
    EXPECT_EQ(SmartDate::getCenturyWindowStart(), 44);
}

} // namespace
