// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlTextScanner.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

#include <gtest/gtest.h>
#include <QtCore/QString>

#include "homebanking/PlainReading.h"

namespace {

XmlTextScanner scan(const std::u16string& text, std::size_t piece = std::u16string::npos) {
    XmlTextScanner scanner;
    for (std::size_t at = 0; at < text.size(); at += std::min(piece, text.size() - at)) {
        const char16_t* begin = text.data() + at;
        scanner.read(begin, begin + std::min(piece, text.size() - at));
    }
    return scanner;
}

struct DepthCase {
    const char16_t* text;
    int levels;
    int attributes;
    const char* why;
};

constexpr DepthCase kDepthCases[] = {
    {u"", 0, 0, "nothing"},
    {u"Text", 0, 0, "no element"},
    {u"<a/>", 1, 0, "an empty element is a level"},
    {u"<a></a>", 1, 0, "so is one with two tags"},
    {u"<a><b/><b/><b></b></a>", 2, 0, "brothers share a level"},
    {u"<a><b><c/></b><b/></a>", 3, 0, "the deepest counts"},
    {u"<a ><b\n/></a ><!-- -->", 2, 0, "blanks in tags"},
    {u"<a><b></b\n></a\t>", 2, 0, "blanks in end tags"},
    {u"<a x='1' y=\"2\"><b z='3'/></a>", 2, 2, "attributes of one element"},
    {u"<a x='/'><b/></a>", 2, 1, "a slash in a value closes nothing"},
    {u"<a x=\"/>\"><b/></a>", 2, 1, "nor does a bracket"},
    {u"<a x='\">'><b y=\"'>\"/></a>", 2, 1, "each quote ends at its own"},
    {u"<a x='<b><b><b>'/>", 1, 1, "tags in a value are none"},
    {u"<a x='1'/><b/>", 1, 1, "a slash behind a value closes"},
    {u"<a><!-- <b><b><b> --></a>", 1, 0, "comments"},
    {u"<a><!-- </a></a> --><b/></a>", 2, 0, "that would take levels away"},
    {u"<a><!--><b/>--></a>", 1, 0, "a comment may start with a bracket"},
    {u"<a><!---><b/>--></a>", 1, 0, "or with a dash and one"},
    {u"<a><!----><b/></a>", 2, 0, "or be empty"},
    {u"<a><!-- - - > <b/> --></a>", 1, 0, "single dashes end none"},
    {u"<a><![CDATA[<b><b>]]></a>", 1, 0, "CDATA sections"},
    {u"<a><![CDATA[]]]]><b/></a>", 2, 0, "that end in brackets"},
    {u"<a><![CDATA[]>]] ><b/>]]></a>", 1, 0, "that hold parts of their end"},
    {u"<a><![CDATA[--><b/>]]></a>", 1, 0, "and other ends"},
    {u"<?xml version='1.0'?><a><?p <b><b> ?></a>", 1, 0, "processing instructions"},
    {u"<a><?p ? > <b/> ?"
     u"?><c/></a>",
     2, 0, "that hold parts of their end"},
    {u"<!DOCTYPE a><a/>", 1, 0, "document types"},
    {u"<!DOCTYPE a SYSTEM 'x[<b><b>'><a/>", 1, 0, "quoted names in them"},
    {u"</a></a></a><b><b/></b>", 2, 0, "levels are never below none"},
};

TEST(XmlTextScannerTest, SeesTheLevelsThroughWhateverHidesThem) {
    for (const DepthCase& test : kDepthCases) {
        for (const std::size_t piece : {std::u16string::npos, std::size_t{1}, std::size_t{3}}) {
            SCOPED_TRACE(QString::fromUtf16(test.text).toStdString() + ": " + test.why);
            const XmlTextScanner scanner = scan(test.text, piece);
            EXPECT_EQ(scanner.deepestLevel(), test.levels);
            EXPECT_EQ(scanner.mostAttributes(), test.attributes);
            EXPECT_FALSE(scanner.hasInternalSubset());
            EXPECT_EQ(scanner.references(), 0U);
            EXPECT_EQ(scanner.length(), std::u16string(test.text).size());
        }
    }
}

TEST(XmlTextScannerTest, CountsWhatMayDeclareAPrefix) {
    const struct {
        const char16_t* text;
        std::size_t prefixes;
        const char* why;
    } cases[] = {
        {u"<a xmlns:p='u'><p:b xmlns:q=\"u\" xmlns:p='v'/></a>", 3, "in all elements, whether new or not"},
        {u"<a xmlns='u' x='xmlns:p' p:x='1'>xmlns:p</a>", 0, "nothing else"},
        {u"<!-- <a xmlns:p='u'> --><a><![CDATA[<a xmlns:p='u'>]]><?p <a xmlns:p='u'> ?></a>", 0,
         "what is seen through"},
        {u"<s:a s:b='1'></s:a>", 2, "a few names more"},
    };
    for (const auto& test : cases) {
        for (const std::size_t piece : {std::u16string::npos, std::size_t{1}, std::size_t{3}})
            EXPECT_EQ(scan(test.text, piece).prefixes(), test.prefixes) << test.why;
    }
}

struct SubsetCase {
    const char16_t* text;
    int levels;
    std::size_t groups;
    std::size_t references;
    const char* why;
};

constexpr SubsetCase kSubsets[] = {
    {u"<!DOCTYPE a []><a/>", 1, 0, 0, "empty"},
    {u"<!DOCTYPE a [<!ENTITY e '<b><b>'>]><a>&e;&e;</a>", 1, 0, 2, "entities"},
    {u"<!DOCTYPE a [<!ENTITY e ']><b>'>]><a/>", 1, 0, 0, "its end in a value"},
    {u"<!DOCTYPE a [<!-- ]><b> ' --><!ENTITY e 'x'>]><a/>", 1, 0, 0, "its end, and a quote, in a comment"},
    {u"<!DOCTYPE a [<?p ]><b> ' ?><!ENTITY e 'x'>]><a/>", 1, 0, 0, "its end, and a quote, in an instruction"},
    {u"<!DOCTYPE a SYSTEM 'x' [<!ELEMENT a (b|(c,d))*>] ><a/>", 1, 2, 0, "groups of a content model"},
    {u"<!DOCTYPE a [<!ATTLIST a b CDATA '(('>%p;]><a/>", 1, 0, 0, "parentheses in a value are none"},
    {u"<!DOCTYPE a [<!ELEMENT a EMPTY>]><a>((&amp;</a>", 1, 0, 1, "nor are those behind the subset"},
    {u"<!DOCTYPE a [<![INCLUDE[<b>]]>]><a/>", 1, 0, 0, "sections are not known there"},
};

TEST(XmlTextScannerTest, TellsOfAnInternalSubset) {
    for (const SubsetCase& test : kSubsets) {
        for (const std::size_t piece : {std::u16string::npos, std::size_t{1}}) {
            SCOPED_TRACE(QString::fromUtf16(test.text).toStdString() + ": " + test.why);
            const XmlTextScanner scanner = scan(test.text, piece);
            EXPECT_TRUE(scanner.hasInternalSubset());
            EXPECT_EQ(scanner.deepestLevel(), test.levels);
            EXPECT_EQ(scanner.groups(), test.groups);
            EXPECT_EQ(scanner.references(), test.references);
        }
    }
}

TEST(XmlTextScannerTest, TellsOfASubsetThatAddsToTheDocument) {
    const struct {
        const char16_t* text;
        bool adds;
        const char* why;
    } cases[] = {
        {u"<!DOCTYPE a [<!ATTLIST a b CDATA 'x'>]><a/>", true, "attributes with their values"},
        {u"<!DOCTYPE a [<!ENTITY % p 'x'>]><a/>", true, "parameter entities"},
        {u"<!DOCTYPE a [<!-- --> %p;]><a/>", true, "references to them"},
        {u"<!DOCTYPE a [<!ENTITY e '%'><!ELEMENT a EMPTY><!NOTATION n SYSTEM 'x'>]><a/>", false,
         "no other declaration"},
        {u"<!DOCTYPE a [<!-- <!ATTLIST % --><?p <!ATTLIST % ?><!ENTITY e '<!ATTLIST %'>]><a/>", false,
         "what is seen through"},
        {u"<!DOCTYPE a SYSTEM '%' []><a b='%'>% <![CDATA[<!ATTLIST]]></a>", false, "in the subset alone"},
    };
    for (const auto& test : cases) {
        for (const std::size_t piece : {std::u16string::npos, std::size_t{1}})
            EXPECT_EQ(scan(test.text, piece).addsToTheDocument(), test.adds) << test.why;
    }
}

TEST(XmlTextScannerTest, NeverSeesLessThanTheReaderOfTheTree) {
    const char16_t* const kPieces[] = {
        u"<a>",   u"<a>", u"<a>",  u"</a>", u"</a>", u"<b",        u" x='1'",      u" y=\"2\"", u" xmlns:p='u'",
        u">",     u"/>",  u"</b>", u"<!--", u"-->",  u"<![CDATA[", u"]]>",         u"]",        u"<?p ",
        u"?>",    u"'",   u"\"",   u"-",    u"?",    u"Text",      u"<!DOCTYPE a", u"[",        u"&lt;",
        u"&#60;", u"/",   u" ",    u"=",    u"<",    u"!"};
    std::mt19937 random(20260117); // the same documents in every run
    int read = 0;
    for (int round = 0; round < 100000; ++round) {
        std::u16string text;
        // Half of the documents start well, so that the reader comes far.
        if (round % 2 == 0)
            text = u"<a><a>";
        for (std::uint_fast32_t count = random() % 14; count > 0; --count)
            text += kPieces[random() % std::size(kPieces)];
        if (round % 2 == 0)
            text += u"</a></a>";

        const PlainReading met = PlainReading::of(text);
        read += met.wellFormed ? 1 : 0;

        const XmlTextScanner scanner = scan(text);
        if (scanner.hasInternalSubset())
            continue;
        SCOPED_TRACE(QString::fromStdU16String(text).toStdString());
        ASSERT_GE(scanner.deepestLevel(), met.deepestLevel);
        ASSERT_GE(scanner.mostAttributes(), met.mostAttributes);
        ASSERT_GE(scanner.prefixes(), met.prefixes);
    }
    EXPECT_GT(read, 500) << "the documents are too broken to prove anything";
}

} // namespace
