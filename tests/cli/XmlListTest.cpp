// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "cli/HomeBankingTexts.h"
#include "cli/XmlLines.h"
#include "cli/XmlList.h"
#include "cli/XmlText.h"

namespace {

std::string inRoot(const std::string& content) { return "<r>" + content + "</r>"; }

TEST(XmlList, CountsTheRecordsOfTheFirstListAlone) {
    const std::string text = inRoot("<x><l><b/></l></x><l a='1'><b><b/></b><b x='>'/> <b>\n</b></l><l><b/></l>");
    const XmlList list(text, "l", "b");
    EXPECT_TRUE(list.isFound());
    EXPECT_EQ(list.recordCount(), 3U) << "neither nested ones nor those of other lists";
    EXPECT_FALSE(list.stranger());
    const XmlList::Range range = *list.records();
    EXPECT_EQ(text.substr(range.begin, range.end - range.begin), "<b><b/></b><b x='>'/> <b>\n</b>");
}

TEST(XmlList, ListMayBeEmptyOrMissing) {
    EXPECT_TRUE(XmlList(inRoot("<l/>"), "l", "b").isFound());
    EXPECT_EQ(XmlList(inRoot("<l/><b/>"), "l", "b").recordCount(), 0U);
    EXPECT_FALSE(XmlList(inRoot("<m/>"), "l", "b").isFound());
    EXPECT_FALSE(XmlList("<l><b/></l>", "l", "b").isFound()) << "the root is no list";
    EXPECT_FALSE(XmlList("", "l", "b").records());
}

TEST(XmlList, AttributesAreReadAsWritten) {
    const std::string text = inRoot("<l xblz='no' blz = \"10 0\" ktonr='a>b' leer=''/>");
    const XmlList list(text, "l", "b");
    EXPECT_EQ(list.attribute("blz"), "10 0");
    EXPECT_EQ(list.attribute("ktonr"), "a>b");
    EXPECT_EQ(list.attribute("leer"), "");
    EXPECT_EQ(list.attribute("fehlt"), "");
}

TEST(XmlList, ChildrenAreFoundByTheirRecord) {
    const std::string text = inRoot("<l><b><id>1</id></b><b><n><id>no</id></n><id/><id>2</id></b>"
                                    "<b><id><i>3</i></id></b><b/><b><id>5</id></b></l>");
    const XmlList list(text, "l", "b");
    EXPECT_EQ(list.childText(1, "id"), "1");
    EXPECT_EQ(list.childText(2, "id"), "") << "the first one, though it is empty";
    EXPECT_EQ(list.childText(3, "id"), "<i>3</i>");
    EXPECT_FALSE(list.child(4, "id")) << "not that of the next record";
    EXPECT_EQ(list.childText(5, "id"), "5");
    EXPECT_FALSE(list.child(0, "id"));
    EXPECT_FALSE(list.child(6, "id"));
    EXPECT_FALSE(list.child(1, "x"));
}

TEST(XmlList, FirstStrangerIsKept) {
    const std::string text = inRoot("<l><b/> <!-- a --><c/><b/></l>");
    const XmlList list(text, "l", "b");
    ASSERT_TRUE(list.stranger());
    EXPECT_EQ(list.stranger()->kind, XmlList::Stranger::Kind::comment);
    EXPECT_EQ(list.stranger()->recordsBefore, 1U);
    EXPECT_EQ(list.stranger()->offset, text.find("<!--"));
    EXPECT_EQ(list.recordCount(), 2U);
    EXPECT_TRUE(list.isCutShort());
    EXPECT_FALSE(XmlList(inRoot("<l><b/><!-- a --></l>"), "l", "b").isCutShort());
    EXPECT_TRUE(XmlList(inRoot("<l><b/><!-- a -->x</l>"), "l", "b").isCutShort());
}

TEST(XmlList, DocumentThatDeclaresSomethingIsNotLookedInto) {
    const std::string text = "<!DOCTYPE r [<!ENTITY l '<l><b/></l>'>]>" + inRoot("<l><b/></l>");
    const XmlList list(text, "l", "b");
    EXPECT_TRUE(list.isOpaque());
    EXPECT_FALSE(list.isFound());
    EXPECT_EQ(XmlList("<!DOCTYPE r SYSTEM 'r.dtd'>" + inRoot("<l><b/></l>"), "l", "b").recordCount(), 1U);
}

TEST(XmlList, AnyBeginningOfADocumentWillDo) {
    const std::string text = HomeBankingTexts::bookingList(
        HomeBankingTexts::booking("1", "x", "y", "<!-- c --><![CDATA[d]]><?p i?>") + "<!-- s -->t<u/>");
    for (std::size_t size = 0; size <= text.size(); ++size) {
        const std::string part = text.substr(0, size);
        const XmlList list(part, "buchungsliste", "buchung");
        EXPECT_LE(list.recordCount(), 1U);
        if (const std::optional<XmlList::Range> range = list.records()) {
            EXPECT_LE(range->end, size);
        }
        if (const std::optional<XmlList::Range> child = list.child(1, "betrag")) {
            EXPECT_LE(child->end, size);
        }
    }
}

TEST(XmlText, EveryWidthIsNarrowed) {
    using std::string_literals::operator""s;
    const std::pair<std::string, const char*> cases[] = {
        {"<a/>", "<a/>"},
        {"\xEF\xBB\xBF<a/>", "<a/>"},
        {"\xFF\xFE<\0a\0"s, "<a"},
        {"\xFE\xFF\0<\0a"s, "<a"},
        {"<\0a\0"s, "<a"},
        {"\0<\0a"s, "<a"},
        {"\xFF\xFE\0\0<\0\0\0a\0\0\0"s, "<a"},
        {"\0\0\xFE\xFF\0\0\0<\0\0\0a"s, "<a"},
        {"<\0\0\0a\0\0\0"s, "<a"},
        {"\0\0\0<\0\0\0a"s, "<a"},
        {"\xFF\xFE\x0A\x01<\0<"s, "\x80<"}, // a letter whose byte looks like a line feed; half a character
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(XmlText(bytes).view(), text);
    EXPECT_TRUE(XmlText("\xEF\xBB\xBF<a/>").isAsWritten());
    EXPECT_FALSE(XmlText("<\0a\0"s).isAsWritten());
}

TEST(XmlLines, EveryLineIsInOneBucket) {
    const std::string text = "<r>\n\n<l>\n<b/>\n \t\r\n<b>\n</b></l>\n</r>\n\n";
    const XmlList list(text, "l", "b");
    const LineCounts lines = XmlLines::count(text, list.records());
    EXPECT_EQ(lines.read, 9U);
    EXPECT_EQ(lines.preamble, 2U);
    EXPECT_EQ(lines.records, 3U);
    EXPECT_EQ(lines.footer, 1U);
    EXPECT_EQ(lines.blank, 3U);
    EXPECT_EQ(lines.ignored, 0U);
    EXPECT_EQ(XmlLines::count("<r>", std::nullopt).ignored, 1U);
    EXPECT_EQ(XmlLines::count("", std::nullopt).read, 0U);
}

TEST(XmlLines, LineIsFoundByAnOffset) {
    const std::string text = "a\nbc\n";
    EXPECT_EQ(XmlLines::numberOf(text, 0), 1U);
    EXPECT_EQ(XmlLines::numberOf(text, 3), 2U);
    const XmlList::Range range = XmlLines::around(text, 3);
    EXPECT_EQ(text.substr(range.begin, range.end - range.begin), "bc");
}

} // namespace
