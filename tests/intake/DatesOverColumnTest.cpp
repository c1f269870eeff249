// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "intake/FileReading.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A table of these dates, one booking each, with amounts that have a decimal point.
std::string tableOf(std::initializer_list<std::string_view> dates) {
    std::string text = "Date;Payee;Purpose;Amount\n";
    int number = 0;
    for (const std::string_view date : dates) {
        text += date;
        text += ";P" + std::to_string(number) + ";Q" + std::to_string(number) + ";-1.50\n";
        ++number;
    }
    return text;
}

TEST(DatesOverColumn, FormsOfADate) {
    // Each means 5 February and 29 February 2024, in this order.
    constexpr std::string_view kForms[][2] = {
        {"05.02.2024", "29.02.2024"},
        {"5.2.2024", "29.2.2024"},
        {"05.02.24", "29.02.24"},
        {"05/02/2024", "29/02/2024"},
        {"05-02-2024", "29-02-2024"},
        {"2024-02-05", "2024-02-29"},
        {"2024/02/05", "2024/02/29"},
        {"2024.02.05.", "2024.02.29."},
        {"20240205", "20240229"},
        {"05022024", "29022024"},
        {"2024-02-05T10:11:12Z", "2024-02-29T10:11:12.345+01:00"},
        {"2024-02-05 10:11:12", "2024-02-29 10:11"},
        {"05.02.2024 10:11", "29.02.2024 23:59"},
        {"2/5/2024 1:02 PM", "2/29/2024 11:59 AM"},
        {"02/05/2024", "02/29/2024"},
        {"5 Feb 2024", "29 Feb 2024"},
        {"Feb 5, 2024", "Feb 29, 2024"},
        {"05. Februar 2024", "29. Februar 2024"},
        {"5 févr. 2024", "29 févr. 2024"},
        {"5 febbraio 2024", "29 febbraio 2024"},
        {"05-FEB-24", "29-FEB-24"},
        {"Mo, 05.02.2024", "Do, 29.02.2024"},
        {" 05.02.2024 ", "29.02.2024 "},
        {"5. 2. 2024", "29. 2. 2024"},
    };
    for (const auto& form : kForms) {
        const FileReading file(tableOf({form[0], form[1]}));
        EXPECT_THAT(file.bookings(), ElementsAre("05.02.2024 -1,50 P0 | Q0", "29.02.2024 -1,50 P1 | Q1")) << form[0];
        EXPECT_THAT(file.messages(), IsEmpty()) << form[0];
    }
}

TEST(DatesOverColumn, ADayAboveTwelveDecidesForAll) {
    EXPECT_THAT(FileReading(tableOf({"03/04/2024", "13/04/2024"})).datesAndAmounts(),
                ElementsAre("03.04.2024 -1,50", "13.04.2024 -1,50"));
    EXPECT_THAT(FileReading(tableOf({"03/04/2024", "03/14/2024"})).datesAndAmounts(),
                ElementsAre("04.03.2024 -1,50", "14.03.2024 -1,50"));
}

TEST(DatesOverColumn, UndecidableOrderIsNotGuessed) {
    const FileReading file(tableOf({"03/04/2024"}));
    EXPECT_EQ(file.undecided(), "date-order-ambiguous");
    EXPECT_EQ(file.intake().undecided->line, 2);
    EXPECT_NE(file.intake().undecided->text.find("--date-order"), std::string::npos);
    EXPECT_THAT(file.records(), IsEmpty());
}

TEST(DatesOverColumn, WholeAmountsSayNothingOfTheOrder) {
    EXPECT_EQ(FileReading("Date;Payee;Amount\n03/04/2024;a;-7\n").undecided(), "date-order-ambiguous");
    EXPECT_THAT(FileReading("Date;Payee;Amount\n03/04/2024;a;-7,00\n").datesAndAmounts(),
                ElementsAre("03.04.2024 -7,00"))
        << "where a comma marks decimals, the day stands in front";
}

TEST(DatesOverColumn, UserDecidesTheOrder) {
    InspectionOptions options;
    options.dateOrder = DateOrder::monthDayYear;
    EXPECT_THAT(FileReading(tableOf({"03/04/2024"}), Import::eFormatCSV, options).datesAndAmounts(),
                ElementsAre("04.03.2024 -1,50"));
}

TEST(DatesOverColumn, YearsOfTwoDigitsInFrontAreToldByWhatScattersLess) {
    EXPECT_THAT(FileReading(tableOf({"24-01-05", "24-01-12", "24-02-03"})).datesAndAmounts(),
                ElementsAre("05.01.2024 -1,50", "12.01.2024 -1,50", "03.02.2024 -1,50"));
}

TEST(DatesOverColumn, YearsOfTwoDigitsFollowTheCenturyWindow) {
    EXPECT_THAT(FileReading(tableOf({"31.12.30", "31.12.31"})).datesAndAmounts(),
                ElementsAre("31.12.2030 -1,50", "31.12.1931 -1,50"));
}

TEST(DatesOverColumn, MissingYearComesFromTheDateBesideIt) {
    const FileReading file("Buchung;Valuta;Text;Betrag\n"
                           "30.12.;02.01.2024;a;-1,50\n"
                           "03.01.;03.01.2024;b;-2,50\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("30.12.2023 -1,50", "03.01.2024 -2,50"));
}

TEST(DatesOverColumn, MissingYearComesFromThePeriodAbove) {
    const FileReading file("Auszug;vom 15.12.2023 bis 15.01.2024\n"
                           "Buchung;Text;Betrag\n"
                           "30.12.;a;-1,50\n"
                           "03.01.;b;-2,50\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("30.12.2023 -1,50", "03.01.2024 -2,50"));
    EXPECT_LT(file.intake().confidence, 1.0);
}

TEST(DatesOverColumn, MissingYearIsNotInvented) {
    const FileReading file("Buchung;Text;Betrag\n30.12.;a;-1,50\n03.01.;b;-2,50\n");
    EXPECT_THAT(file.records(), IsEmpty());
}

TEST(DatesOverColumn, DayThatDoesNotExistIsRefusedWithItsLine) {
    const FileReading file(tableOf({"2024-02-28", "2024-02-30", "2024-03-01"}));
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("28.02.2024 -1,50", "01.03.2024 -1,50"));
    EXPECT_THAT(file.messages(), ElementsAre("bad-date@3"));
    EXPECT_EQ(file.refused(), 1);
    EXPECT_EQ(file.lines(), "HRRR");
}

TEST(DatesOverColumn, MissingDateIsRefusedWithItsLine) {
    const FileReading file(tableOf({"2024-02-28", "", "2024-03-01"}));
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("28.02.2024 -1,50", "01.03.2024 -1,50"));
    EXPECT_THAT(file.messages(), ElementsAre("date-missing@3"));
}

TEST(DatesOverColumn, UndatedBookingsAreTakenWhereTheUserWantsThem) {
    InspectionOptions options;
    options.allowUndated = true;
    const FileReading file(tableOf({"2024-02-28", "2024-02-30", "2024-03-01"}), Import::eFormatCSV, options);
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("28.02.2024 -1,50", " -1,50", "01.03.2024 -1,50"));
}

} // namespace
