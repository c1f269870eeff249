// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "framework/Latin1.h"
#include "homebanking/BankingXML.h"
#include "homebanking/Encoded.h"
#include "homebanking/HomeBankingFixture.h"

namespace {

using HomeBankingXml::kNotXml;

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

struct EncodingCase {
    const char* codec;    ///< what the bytes are
    const char* before;   ///< bytes before the document
    const char* declared; ///< in the XML declaration; empty without
    const char* stored;   ///< the name "Jürgen €" in the model; null when the document is refused
    const char* why;
};

const EncodingCase kCases[] = {
    {"UTF-8", "", "", "Jürgen ?"_latin1, "without a declaration it is UTF-8"},
    {"UTF-8", "", "UTF-8", "Jürgen ?"_latin1, "declared"},
    {"UTF-8", kByteOrderMark, "", "Jürgen ?"_latin1, "with a byte-order mark"},
    {"UTF-8", kByteOrderMark, "utf-8", "Jürgen ?"_latin1, "names of encodings know no case"},
    {"UTF-8", "", "Klingonisch", "Jürgen ?"_latin1, "an unknown encoding is UTF-8"},
    {"windows-1252", "", "windows-1252", "Jürgen ?"_latin1, "declared"},
    {"ISO-8859-15", "", "ISO-8859-15", "Jürgen ?"_latin1, "declared"},
    {"UTF-16", "", "", "Jürgen ?"_latin1, "found by its mark"},
    {"UTF-16", "", "UTF-16", "Jürgen ?"_latin1, "and declared"},
    {"UTF-16LE", "", "", "Jürgen ?"_latin1, "found by its first character"},
    {"UTF-16BE", "", "", "Jürgen ?"_latin1, "in both byte orders"},
    {"UTF-16LE", "", "UTF-16LE", "Jürgen ?"_latin1, "and declared"},
    {"UTF-16BE", "\xFE\xFF", "UTF-16", "Jürgen ?"_latin1, "and declared without the byte order"},
    {"UTF-32", "", "", "Jürgen ?"_latin1, "found by its mark"},
    {"UTF-32LE", "", "", "Jürgen ?"_latin1, "found by its first character"},
    {"UTF-32BE", "", "", "Jürgen ?"_latin1, "in both byte orders"},

    {"windows-1252", "", "", "J?rgen ?", "not declared: what is no UTF-8 is lost"},
    {"windows-1252", "", "UTF-8", "J?rgen ?", "wrongly declared"},
    {"UTF-8", "", "windows-1252", "JÃ¼rgen â?¬"_latin1, "wrongly declared the other way round"},
    {"UTF-8", "", "UTF-16", nullptr, "the declaration wins over the bytes"},
    {"UTF-16", "", "UTF-8", nullptr, "even over a byte-order mark"},
    {"UTF-8", "", "IBM037", nullptr, "a code in which the declaration itself would look different"},
};

class EncodingTest : public HomeBankingFixture<BankingXML> {
protected:
    static std::string bytesOf(const EncodingCase& test) {
        std::string text;
        if (*test.declared != '\0')
            text = "<?xml version=\"1.0\" encoding=\"" + std::string(test.declared) + "\"?>";
        text += "<HomeBanking version=\"1.0\"><kontoliste><konto><blz>100</blz><ktonr>42</ktonr>"
                "<bezeichnung>Jürgen €</bezeichnung></konto></kontoliste></HomeBanking>";
        return test.before + encoded(test.codec, text);
    }
};

TEST_F(EncodingTest, OfTheDocumentIsWhatTheTreeReaderFinds) {
    for (const EncodingCase& test : kCases) {
        SCOPED_TRACE(std::string(test.codec) + " declared \"" + test.declared + "\": " + test.why);
        const FinanceModel model;
        BankingXML banking;
        const std::string bytes = bytesOf(test);
        EXPECT_EQ(banking.updateAccountList(input(bytes, model)), test.stored != nullptr);
        if (test.stored != nullptr) {
            EXPECT_EQ(model.text("HomeBankingImport/1/Bezeichnung"), test.stored);
        } else {
            EXPECT_EQ(std::string(banking.getErrorMsg()).substr(0, std::string(kNotXml).size()), kNotXml);
        }
    }
}

} // namespace
