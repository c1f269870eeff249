// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlImportData.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "support/CountingNode.h"

namespace {

TEST(XmlImportDataTest, FreshInputHoldsNothing) {
    const XmlImportData data;
    EXPECT_EQ(data.getBuffer(), nullptr);
    EXPECT_EQ(data.getBufferSize(), 0U);
    EXPECT_EQ(data.getXmlFileName(), "");
    EXPECT_EQ(data.getImportTargetNode(), nullptr);
}

TEST(XmlImportDataTest, FileNameReplacesBuffer) {
    XmlImportData data;
    data.setXmlContent("<a/>", 4);
    data.setXmlFileName("konten.xml");
    EXPECT_EQ(data.getXmlFileName(), "konten.xml");
    EXPECT_EQ(data.getBuffer(), nullptr);
    EXPECT_EQ(data.getBufferSize(), 0U);
}

TEST(XmlImportDataTest, BufferReplacesFileNameAndIsNotCopied) {
    const char document[] = "<a/>";
    XmlImportData data;
    data.setXmlFileName("konten.xml");
    data.setXmlContent(document, 4);
    EXPECT_EQ(data.getXmlFileName(), "");
    EXPECT_EQ(data.getBuffer(), document);
    EXPECT_EQ(data.getBufferSize(), 4U);
}

TEST(XmlImportDataTest, FileNameIsCopied) {
    char name[] = "konten.xml";
    XmlImportData data;
    data.setXmlFileName(name);
    name[0] = 'X';
    EXPECT_EQ(data.getXmlFileName(), "konten.xml");
}

TEST(XmlImportDataTest, NullIsNoFileName) {
    XmlImportData data;
    data.setXmlFileName("konten.xml");
    data.setXmlFileName(nullptr);
    EXPECT_EQ(data.getXmlFileName(), "");
}

TEST(XmlImportDataTest, SourcesLeaveTheTargetAlone) {
    CountingNode root;
    XmlImportData data;
    data.setImportTargetNode(&root);
    data.setXmlFileName("konten.xml");
    data.setXmlContent("<a/>", 4);
    EXPECT_EQ(data.getImportTargetNode(), &root);
}

TEST(XmlImportDataTest, IsAPlainValue) {
    XmlImportData data;
    data.setXmlFileName("konten.xml");
    const XmlImportData copy = data;
    data.setXmlFileName("andere.xml");
    EXPECT_EQ(copy.getXmlFileName(), "konten.xml");
    EXPECT_FALSE(std::is_polymorphic_v<XmlImportData>);
}

} // namespace
