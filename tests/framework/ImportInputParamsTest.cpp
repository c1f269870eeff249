// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportInputParams.h"

#include <climits>
#include <cstddef>
#include <type_traits>

#include <gtest/gtest.h>

#include "framework/ColumnAssignment.h"
#include "framework/E_SupportedImportFormats.h"

namespace {

// Plain structures that hosts fill by field order.
static_assert(std::is_standard_layout_v<ImportInputParams> && std::is_trivially_copyable_v<ImportInputParams>);
static_assert(offsetof(ImportInputParams, m_fileName) < offsetof(ImportInputParams, m_targetNode));
static_assert(offsetof(ImportInputParams, m_targetNode) < offsetof(ImportInputParams, m_importInfo));
static_assert(offsetof(ImportInputParams, m_importInfo) < offsetof(ImportInputParams, m_firstLineIsHeader));
static_assert(offsetof(ImportInputParams, m_firstLineIsHeader) + 1 == offsetof(ImportInputParams, m_simulate));
static_assert(offsetof(ImportInputParams, m_simulate) < offsetof(ImportInputParams, m_buffer));
static_assert(offsetof(ImportInputParams, m_buffer) < offsetof(ImportInputParams, m_bufferSize));

static_assert(std::is_trivially_copyable_v<ColumnAssignment> && std::is_standard_layout_v<ColumnAssignment>);
static_assert(sizeof(ColumnAssignment) == 15 * sizeof(int));
static_assert(offsetof(ColumnAssignment, m_pairs) == 0);
static_assert(offsetof(ColumnAssignment, m_count) == 14 * sizeof(int));
static_assert(offsetof(ColumnAssignment::Pair, m_inputColumn) < offsetof(ColumnAssignment::Pair, m_column));

static_assert(std::is_same_v<std::underlying_type_t<Import::E_SupportedImportFormats>, int>);

TEST(ImportInputParamsTest, FreshParametersAreAllZero) {
    const ImportInputParams params;
    EXPECT_EQ(params.m_fileName, nullptr);
    EXPECT_EQ(params.m_targetNode, nullptr);
    EXPECT_EQ(params.m_importInfo, nullptr);
    EXPECT_EQ(params.m_firstLineIsHeader, 0);
    EXPECT_EQ(params.m_simulate, 0);
    EXPECT_EQ(params.m_buffer, nullptr);
    EXPECT_EQ(params.m_bufferSize, 0UL);
    EXPECT_EQ(params.getBuffer(), nullptr);
    EXPECT_EQ(params.getBufferSize(), 0UL);
}

TEST(ImportInputParamsTest, BufferTakesThePlaceOfTheFile) {
    ImportInputParams params;
    params.m_fileName = "x.csv";
    const char bytes[] = "abc";
    params.setInputFileBuffer(bytes, 2);
    EXPECT_EQ(params.m_fileName, nullptr);
    EXPECT_EQ(params.getBuffer(), bytes);
    EXPECT_EQ(params.getBufferSize(), 2UL);
}

TEST(ImportInputParamsTest, SizeOfAllOnesStandsForAZeroTerminatedBuffer) {
    ImportInputParams params;
    params.setInputFileBuffer("abc", ULONG_MAX);
    EXPECT_EQ(params.getBufferSize(), 3UL);
    params.setInputFileBuffer("", ULONG_MAX);
    EXPECT_EQ(params.getBufferSize(), 0UL);
}

TEST(ImportInputParamsTest, SizeOfAllOnesStaysWithoutABuffer) {
    ImportInputParams params;
    params.m_fileName = "x.csv";
    params.setInputFileBuffer(nullptr, ULONG_MAX);
    EXPECT_EQ(params.m_fileName, nullptr);
    EXPECT_EQ(params.getBuffer(), nullptr);
    EXPECT_EQ(params.getBufferSize(), ULONG_MAX);
}

TEST(ImportInputParamsTest, AnyOtherSizeIsTakenAsItIs) {
    ImportInputParams params;
    params.setInputFileBuffer("abc", ULONG_MAX - 1);
    EXPECT_EQ(params.getBufferSize(), ULONG_MAX - 1);
    params.setInputFileBuffer("abc", 0);
    EXPECT_EQ(params.getBufferSize(), 0UL);
}

TEST(ImportFormatsTest, NumbersAreThoseThatHostsStore) {
    EXPECT_EQ(Import::eFormatStarMoney, 0);
    EXPECT_EQ(Import::eFormatCSV, 1);
    EXPECT_EQ(Import::eFormatQIF, 2);
    EXPECT_EQ(Import::eFormatTaxData, 3);
    EXPECT_EQ(Import::eFormatZasterhof, 5);
    EXPECT_EQ(Import::eFormatNone, 99);
}

} // namespace
