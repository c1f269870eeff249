// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/BlockStringBuf.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Fields = std::vector<std::string>;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

/// A row that points into `fields`.
UnknownRowInfo rowOf(Fields& fields) {
    UnknownRowInfo row{};
    for (std::size_t i = 0; i < fields.size(); ++i)
        row.m_columns[i] = fields[i].data();
    return row;
}

BlockStringBuf packed(Fields fields) { return BlockStringBuf(rowOf(fields), static_cast<int>(fields.size())); }

Fields restored(BlockStringBuf& buffer) {
    int count = -1;
    char** columns = buffer.restore(count);
    return {columns, columns + count};
}

TEST(BlockStringBuf, KeepsTheFieldsWhenTheLineIsGone) {
    BlockStringBuf buffer = packed({"Datum", "M\xFCller; S\xF6hne", "-1,50"});

    EXPECT_THAT(restored(buffer), ElementsAre("Datum", "M\xFCller; S\xF6hne", "-1,50"));
}

TEST(BlockStringBuf, KeepsEmptyFields) {
    BlockStringBuf buffer = packed({"", "a", "", ""});

    EXPECT_THAT(restored(buffer), ElementsAre("", "a", "", ""));
}

TEST(BlockStringBuf, KeepsNoFieldsAtAll) {
    BlockStringBuf buffer = packed({});

    EXPECT_THAT(restored(buffer), IsEmpty());
}

TEST(BlockStringBuf, KeepsOnlyTheFieldsAskedFor) {
    Fields fields = {"a", "b", "c"};
    BlockStringBuf buffer(rowOf(fields), 2);

    EXPECT_THAT(restored(buffer), ElementsAre("a", "b"));
}

TEST(BlockStringBuf, KeepsAFullRowOfLongFields) {
    Fields fields;
    for (int i = 0; i < UnknownRowInfo::kColumns; ++i)
        fields.emplace_back(static_cast<std::size_t>(i) * 83, static_cast<char>('a' + i % 26));
    BlockStringBuf buffer = packed(fields);

    EXPECT_THAT(restored(buffer), ElementsAreArray(fields));
}

TEST(BlockStringBuf, CanBeRestoredAgain) {
    BlockStringBuf buffer = packed({"a", "b"});
    restored(buffer);

    EXPECT_THAT(restored(buffer), ElementsAre("a", "b"));
}

TEST(BlockStringBuf, FieldsCanBeChangedWithoutTouchingOneAnother) {
    BlockStringBuf buffer = packed({"abc", "def"});
    int count = 0;
    std::fill_n(buffer.restore(count)[0], 3, 'x');

    EXPECT_THAT(restored(buffer), ElementsAre("xxx", "def"));
}

TEST(BlockStringBuf, CopiesAreIndependent) {
    BlockStringBuf original = packed({"abc", ""});
    int count = 0;
    original.restore(count);
    BlockStringBuf copy(original);
    original.restore(count)[0][0] = 'X';

    EXPECT_THAT(restored(copy), ElementsAre("abc", ""));
    EXPECT_THAT(restored(original), ElementsAre("Xbc", ""));
    EXPECT_NE(copy.restore(count)[0], original.restore(count)[0]);
}

TEST(BlockStringBuf, CopiesOutliveTheOriginal) {
    auto original = std::make_unique<BlockStringBuf>(packed({"abc", "def"}));
    BlockStringBuf copy(*original);
    original.reset();

    EXPECT_THAT(restored(copy), ElementsAre("abc", "def"));
}

TEST(BlockStringBuf, CopiesOfNothingHoldNothing) {
    BlockStringBuf original = packed({});
    BlockStringBuf copy(original);

    EXPECT_THAT(restored(copy), IsEmpty());
}

} // namespace
