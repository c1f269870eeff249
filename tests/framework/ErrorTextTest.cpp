// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "framework/ModuleFixture.h"

namespace {

class ErrorTextTest : public ModuleFixture {};

TEST_F(ErrorTextTest, HeadingIsAddedOnceBeforeTheFirstText) {
    m_module.appendErrorMsg("Kopf<br>", "eins<br>");
    m_module.appendErrorMsg("Kopf<br>", "zwei<br>");
    m_module.appendErrorMsg("anderer Kopf<br>", "drei<br>");
    EXPECT_STREQ(m_module.getErrorMsg(), "Kopf<br>eins<br>zwei<br>drei<br>");
}

TEST_F(ErrorTextTest, NullHeadingAndNullTextStandForNothing) {
    m_module.appendErrorMsg(nullptr, nullptr);
    EXPECT_STREQ(m_module.getErrorMsg(), "");
    m_module.appendErrorMsg(nullptr, "eins<br>");
    EXPECT_STREQ(m_module.getErrorMsg(), "eins<br>");
    m_module.appendErrorMsg("Kopf<br>", nullptr);
    EXPECT_STREQ(m_module.getErrorMsg(), "eins<br>") << "a heading comes before the first text only";
}

TEST_F(ErrorTextTest, HeadingMayStandWithoutText) {
    m_module.appendErrorMsg("Kopf<br>", nullptr);
    EXPECT_STREQ(m_module.getErrorMsg(), "Kopf<br>");
}

TEST_F(ErrorTextTest, LineNumberIsRightAlignedInThreePlaces) {
    struct Case {
        int line;
        const char* want;
    };
    const Case cases[] = {{1, "(Zeile   1):x"},     {42, "(Zeile  42):x"},      {999, "(Zeile 999):x"},
                          {1000, "(Zeile 1000):x"}, {65535, "(Zeile 65535):x"}, {INT_MAX, "(Zeile 2147483647):x"},
                          {0, "(Zeile   0):x"}};
    for (const Case& c : cases) {
        ScriptedModule module;
        module.m_lineNo = c.line;
        module.setErrorLineMsg("x");
        EXPECT_STREQ(module.getErrorMsg(), c.want);
    }
}

TEST_F(ErrorTextTest, LineErrorsFollowOneAnotherWithoutSeparator) {
    m_module.m_lineNo = 7;
    m_module.appendErrorMsg("Kopf<br>", nullptr);
    m_module.setErrorLineMsg("eins");
    m_module.setErrorLineMsg("zwei<br>");
    EXPECT_STREQ(m_module.getErrorMsg(), "Kopf<br>(Zeile   7):eins(Zeile   7):zwei<br>");
}

TEST_F(ErrorTextTest, LineErrorAppendsItsTextWhole) {
    const std::string text(5000, 'x');
    m_module.m_lineNo = 1;
    m_module.setErrorLineMsg(text.c_str());
    EXPECT_EQ(m_module.getErrorMsg(), "(Zeile   1):" + text);
}

TEST_F(ErrorTextTest, PercentSignsInATextAreJustText) {
    m_module.m_lineNo = 1;
    m_module.setErrorLineMsg("100 %s %n");
    EXPECT_STREQ(m_module.getErrorMsg(), "(Zeile   1):100 %s %n");
}

TEST_F(ErrorTextTest, ImportDoesNotClearTheTextOfAnEarlierOne) {
    m_module.appendErrorMsg(nullptr, "von vorher<br>");
    EXPECT_EQ(import("eins\n"), 1);
    EXPECT_STREQ(m_module.getErrorMsg(), "von vorher<br>");
    EXPECT_EQ(import(std::string(4095, 'x')), 0);
    EXPECT_STREQ(m_module.getErrorMsg(),
                 "von vorher<br>(Zeile   1):Fehler beim Analysieren der Daten aus der XML-Datei.\n");
}

} // namespace
