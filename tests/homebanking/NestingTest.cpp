// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>
#include <QtXml/QDomDocument>

#include "framework/Latin1.h"
#include "homebanking/BankingXML.h"
#include "homebanking/Encoded.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/QtParser.h"

// A tree of tens of thousands of levels overflows the stack; more than 1,000
// are refused before one is built.
namespace {

using namespace HomeBankingXml;

constexpr int kDeepest = 1000;
constexpr const char* kTooDeep =
    "Die XML-Datei ist ungültig.\r\nDie Elemente sind mehr als 1000 Ebenen tief verschachtelt."_latin1;

std::string nested(int levels) { return repeated("<a>", levels) + repeated("</a>", levels); }

class NestingTest : public testing::Test {
protected:
    /// The error text; empty when a tree was built.
    static std::string read(const QByteArray& bytes) {
        BankingXML banking;
        QDomDocument document;
        const bool built = banking.initXmldocument(document, bytes);
        const std::string error = banking.getErrorMsg();
        EXPECT_EQ(built, error.empty());
        if (error == kTooDeep) {
            EXPECT_FALSE(document.hasChildNodes()) << "a tree was begun";
        }
        return error;
    }
    static std::string read(const std::string& text) { return read(QByteArray(text.c_str())); }
};

TEST_F(NestingTest, ThousandLevelsAreReadAndOneMoreIsNot) {
    EXPECT_EQ(read(nested(kDeepest)), "");
    EXPECT_EQ(read(nested(kDeepest + 1)), kTooDeep);
}

TEST_F(NestingTest, LastLevelMayBeAnEmptyElement) {
    EXPECT_EQ(read(repeated("<a>", kDeepest - 1) + "<a/>" + repeated("</a>", kDeepest - 1)), "");
    EXPECT_EQ(read(repeated("<a>", kDeepest) + "<a/>" + repeated("</a>", kDeepest)), kTooDeep);
}

TEST_F(NestingTest, ManyBrothersAreNotDeep) { EXPECT_EQ(read("<a>" + repeated("<b><c/></b>", 5000) + "</a>"), ""); }

TEST_F(NestingTest, DepthIsSeenInEveryEncoding) {
    const struct {
        const char* codec;
        const char* declared;
        const char* mark = "";
    } kEncodings[] = {
        {"UTF-8", ""},
        {"UTF-8", "UTF-8"},
        {"ISO-8859-1", "ISO-8859-1"},
        {"windows-1252", "windows-1252"},
        {"Shift_JIS", "Shift_JIS"},
        {"GB18030", "GB18030"},
        {"ISO-2022-JP", "ISO-2022-JP"},
        {"UTF-16", ""},
        {"UTF-16", "UTF-16"},
        {"UTF-16LE", ""},
        {"UTF-16BE", ""},
        {"UTF-16LE", "UTF-16LE"},
        {"UTF-16BE", "UTF-16", "\xFE\xFF"},
        {"UTF-32", ""},
        {"UTF-32LE", ""},
        {"UTF-32BE", ""},
    };
    for (const auto& encoding : kEncodings) {
        SCOPED_TRACE(std::string(encoding.codec) + " " + encoding.declared);
        std::string declaration;
        if (*encoding.declared != '\0')
            declaration = "<?xml version=\"1.0\" encoding=\"" + std::string(encoding.declared) + "\"?>";
        const auto document = [&](int levels) {
            return QByteArray::fromStdString(encoding.mark + encoded(encoding.codec, declaration + nested(levels)));
        };
        EXPECT_EQ(read(document(kDeepest)), "");
        EXPECT_EQ(read(document(kDeepest + 1)), kTooDeep);
    }
}

TEST_F(NestingTest, TagsWrittenWithoutTheirOwnBytesAreSeen) {
    const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-7\"?>";
    const auto hidden = [&](int levels) {
        return declaration + repeated("+ADw-a+AD4-", levels) + repeated("+ADw-/a+AD4-", levels);
    };
    EXPECT_EQ(read(hidden(kDeepest)), "");
    EXPECT_EQ(read(hidden(kDeepest + 1)), kTooDeep);
}

TEST_F(NestingTest, WhatLooksLikeTagsIsNotCounted) {
    const std::string tags = repeated("<b>", 2 * kDeepest);
    EXPECT_EQ(read("<a><!-- " + tags + " --></a>"), "");
    EXPECT_EQ(read("<a><![CDATA[" + tags + "]]></a>"), "");
    EXPECT_EQ(read("<a><?p " + tags + " ?></a>"), "");
    EXPECT_EQ(read("<!DOCTYPE a [<!-- " + tags + " --><!ENTITY e '" + tags + "'>]><a/>"), "");
}

TEST_F(NestingTest, DepthIsSeenBehindWhatLooksLikeTags) {
    const std::string ends = repeated("</a>", kDeepest);
    for (const std::string& hiding : {"<!-- " + ends + " -->", "<![CDATA[" + ends + "]]>", "<?p " + ends + " ?>",
                                      std::string("<b c='/' d=\"/>\"/>")}) {
        const std::string deep = repeated("<a>", kDeepest);
        EXPECT_EQ(read(deep + hiding + "<a/>" + ends), kTooDeep) << hiding.substr(0, 20);
    }
}

TEST_F(NestingTest, DepthThatEntitiesMakeIsSeen) {
    // With one parser nothing keeps an element from starting in an entity and ending elsewhere.
    const std::string subset = "<!DOCTYPE a [<!ENTITY open '<b><b><b><b>'>]>";
    const auto document = [&](int references) {
        return subset + "<a>" + repeated("&open;", references) + repeated("</b>", 4 * references) + "</a>";
    };
    if (QtParser::kElementsMayLeaveEntities) {
        EXPECT_EQ(read(document(10)), "");
        EXPECT_EQ(read(document(249)), "");
        EXPECT_EQ(read(document(250)), kTooDeep);
    } else {
        const std::string text = read(document(10));
        EXPECT_EQ(text.substr(0, 29), std::string(kTooDeep).substr(0, 29)) << "the fixed line and its break";
        EXPECT_NE(text, kTooDeep);
    }

    const std::string whole = "<!DOCTYPE a [<!ENTITY e '<b><b><b><b></b></b></b></b>'>]>";
    EXPECT_EQ(read(whole + repeated("<a>", 996) + "&e;" + repeated("</a>", 996)), "");
    EXPECT_EQ(read(whole + repeated("<a>", 997) + "&e;" + repeated("</a>", 997)), kTooDeep);
}

TEST_F(NestingTest, DepthIsSeenBesideEntities) {
    const std::string subset = "<!DOCTYPE a [<!ENTITY e 'Text'>]>";
    EXPECT_EQ(read(subset + nested(kDeepest)), "");
    EXPECT_EQ(read(subset + nested(kDeepest + 1)), kTooDeep);
}

TEST_F(NestingTest, DepthBehindAnErrorIsTheParsersBusiness) {
    const std::string text = read("<a b=c>" + nested(5000));
    EXPECT_NE(text, kTooDeep);
    EXPECT_EQ(text.substr(0, 29), std::string(kTooDeep).substr(0, 29)) << "the fixed line and its break";
}

TEST_F(NestingTest, BrokenMarkupIsTheParsersBusiness) {
    for (const char* broken : {"<a><!-x--></a>", "<a><!x></a>", "<a><!- - x --></a>", "<a><></></a>", "<a", "<a b='",
                               "<!", "<!-", "<![", "<?", "<!DOCTYPE a [<![INCLUDE[<b>]]>]><a/>",
                               "<!DOCTYPE a [<!ATTLIST a [ b>]><a/>", "<!DOCTYPE a [", "<!DOCTYPE a [<!ENTITY e '"}) {
        const std::string text = read(std::string(broken));
        EXPECT_EQ(text.substr(0, 29), std::string(kTooDeep).substr(0, 29)) << broken;
        EXPECT_EQ(text.find("1000"), std::string::npos) << broken;
    }
}

TEST_F(NestingTest, ImportTellsOfTheDepth) {
    const FinanceModel model;
    BankingXML banking;
    XmlImportData data;
    const std::string deep = kontoliste("<konto>" + nested(kDeepest) + "</konto>");
    data.setImportTargetNode(model.root());
    data.setXmlContent(deep.data(), deep.size());
    EXPECT_FALSE(banking.updateAccountList(data));
    EXPECT_STREQ(banking.getErrorMsg(), kTooDeep);
    EXPECT_FALSE(banking.importAccountingEntries(data));
    EXPECT_EQ(model.rows("HomeBankingImport"), 0);
}

} // namespace
