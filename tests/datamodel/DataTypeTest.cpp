// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DataType.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "datamodel/ModelTesting.h"

namespace {

using ModelTesting::date;
using ModelTesting::display;
using ModelTesting::text;
using ModelTesting::zeroDate;

// Around the limits of what a field and a value hold without a block of their own.
constexpr std::size_t kLengths[] = {0, 1, 12, 13, 14, 15, 16, 17, 254, 255, 256, 4094, 100000};

std::string sample(std::size_t length) {
    std::string bytes;
    for (std::size_t i = 0; i < length; ++i)
        bytes.push_back(static_cast<char>('a' + i % 26));
    return bytes;
}

TEST(DataType, KindsHaveTheNumbersOfTheContract) {
    EXPECT_EQ(int{DataType().kind()}, 0);
    EXPECT_EQ(int{DataType::makeInteger(1).kind()}, 2);
    EXPECT_EQ(int{DataType::makeCurrency(1).kind()}, 3);
    EXPECT_EQ(int{text("x").kind()}, 4);
    EXPECT_EQ(int{date(1, 1, 2000).kind()}, 5);
    EXPECT_EQ(int{DataType::makeBoolean(true).kind()}, 6);
}

TEST(DataType, ContentIsReadOnlyAsItsOwnKind) {
    const DataType values[] = {DataType(),
                               DataType::makeInteger(7),
                               DataType::makeCurrency(7.5),
                               text("sieben"),
                               text("sieben und noch mehr"),
                               date(7, 7, 2007),
                               DataType::makeBoolean(true)};
    for (const DataType& value : values) {
        const auto kind = value.kind();
        EXPECT_EQ(value.getInt(), kind == DataType::eInteger ? 7 : 0) << int{kind};
        EXPECT_EQ(value.getCurrency(), kind == DataType::eCurrency ? 7.5 : 0.0) << int{kind};
        EXPECT_EQ(value.getDate(), kind == DataType::eDate ? DMDate(7, 7, 2007) : DMDate()) << int{kind};
        EXPECT_EQ(value.getBoolean(), kind == DataType::eBoolean) << int{kind};
    }
}

TEST(DataType, IntegersKeepTheirWholeRange) {
    EXPECT_EQ(DataType::makeInteger(INT_MAX).getInt(), INT_MAX);
    EXPECT_EQ(DataType::makeInteger(INT_MIN).getInt(), INT_MIN);
}

TEST(DataType, TextsOfEveryLengthComeBackWhole) {
    for (const std::size_t length : kLengths)
        EXPECT_EQ(display(text(sample(length))), sample(length)) << length;
}

TEST(DataType, TextIsACopyOfItsOwn) {
    for (const std::size_t length : kLengths) {
        std::string bytes = sample(length);
        const DataType value = text(bytes);
        bytes.assign(length, '#');
        EXPECT_EQ(display(value), sample(length)) << length;
    }
}

TEST(DataType, NullIsTheEmptyText) {
    DataType value = text("etwas Laengeres als sechzehn");
    value = static_cast<const char*>(nullptr);
    EXPECT_EQ(value.kind(), DataType::eString);
    EXPECT_EQ(display(value), "");
}

TEST(DataType, TextKeepsEveryByteButZero) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    EXPECT_EQ(display(text(bytes)), bytes);
}

TEST(DataType, TextEndsAtTheFirstZeroByte) {
    DataType value;
    value = "ab\0cd";
    EXPECT_EQ(display(value), "ab");
}

TEST(DataType, CopiesLiveOnWithoutTheirOriginal) {
    for (const std::size_t length : kLengths) {
        std::vector<DataType> copies;
        {
            const DataType original = text(sample(length));
            const DataType constructed(original);
            DataType assigned;
            assigned = original;
            copies.push_back(constructed);
            copies.push_back(assigned);
        }
        for (const DataType& copy : copies)
            EXPECT_EQ(display(copy), sample(length)) << length;
    }
}

TEST(DataType, CopiesDoNotFollowChangesOfTheOriginal) {
    for (const std::size_t length : kLengths) {
        DataType original = text(sample(length));
        const DataType copy = original;
        original = "anders";
        EXPECT_EQ(display(copy), sample(length)) << length;
        EXPECT_EQ(display(original), "anders");
    }
}

TEST(DataType, AssigningAValueToItselfChangesNothing) {
    for (const std::size_t length : kLengths) {
        DataType value = text(sample(length));
        const DataType& self = value;
        value = self;
        EXPECT_EQ(display(value), sample(length)) << length;
    }
    DataType number = DataType::makeInteger(5);
    const DataType& self = number;
    number = self;
    EXPECT_EQ(number.getInt(), 5);
}

TEST(DataType, AssigningACopyOfTheSameTextChangesNothing) {
    DataType value = text(sample(40));
    const DataType copy = value;
    value = copy;
    EXPECT_EQ(display(value), sample(40));
    EXPECT_EQ(display(copy), sample(40));
}

TEST(DataType, EveryKindCanReplaceEveryOther) {
    const DataType values[] = {DataType(),   DataType::makeInteger(-3),   DataType::makeCurrency(-2.5),
                               text("kurz"), text(sample(200)),           date(29, 2, 2024),
                               zeroDate(),   DataType::makeBoolean(false)};
    for (const DataType& from : values) {
        for (const DataType& to : values) {
            DataType value = from;
            value = to;
            EXPECT_EQ(value.kind(), to.kind());
            EXPECT_EQ(display(value), display(to));
        }
    }
}

TEST(DataType, DateAssignmentReplacesALongText) {
    DataType value = text(sample(200));
    value = DMDate(1, 2, 2003);
    EXPECT_EQ(value.kind(), DataType::eDate);
    EXPECT_EQ(value.getDate(), DMDate(1, 2, 2003));
    EXPECT_EQ(display(value), "01.02.2003");
}

} // namespace
