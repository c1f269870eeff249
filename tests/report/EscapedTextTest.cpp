// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "report/HtmlText.h"
#include "report/MarkdownText.h"

namespace {

struct Case {
    const char* text;
    const char* html;
    const char* markdown;
};

const Case kCases[] = {
    {"", "", ""},
    {"Bäckerei Müller", "Bäckerei Müller", "Bäckerei Müller"},
    {"<script>alert(1)</script>", "&lt;script&gt;alert(1)&lt;/script&gt;", "&lt;script&gt;alert(1)&lt;/script&gt;"},
    {"A & B &amp; C", "A &amp; B &amp;amp; C", "A &amp; B &amp;amp; C"},
    {"\" onmouseover='x", "&quot; onmouseover=&#39;x", "\" onmouseover='x"},
    {"a|b", "a|b", "a\\|b"},
    {"`rm`", "`rm`", "\\`rm\\`"},
    {"*fett* _kursiv_ ~weg~", "*fett* _kursiv_ ~weg~", "\\*fett\\* \\_kursiv\\_ \\~weg\\~"},
    {"[x](http://y)", "[x](http://y)", "\\[x\\](http://y)"},
    {"a\\|b", "a\\|b", "a\\\\\\|b"},
    {"# kein Titel", "# kein Titel", "\\# kein Titel"},
    {"Nr. # 1", "Nr. # 1", "Nr. # 1"},
    {"- kein Punkt", "- kein Punkt", "\\- kein Punkt"},
    {"-12,50", "-12,50", "-12,50"},
    {"1. Mai", "1. Mai", "1\\. Mai"},
    {"01.05.2004", "01.05.2004", "01.05.2004"},
    {"---", "---", "\\---"},
    {"-", "-", "\\-"},
    {"- - -", "- - -", "\\- - -"},
    {"--info x", "--info x", "--info x"},
    {"+49 30 1", "+49 30 1", "+49 30 1"},
    {"12) Rate", "12) Rate", "12\\) Rate"},
    {"2004", "2004", "2004"},
    {"    eingerückt", "    eingerückt", "eingerückt"},
    {"$x$", "$x$", "\\$x\\$"},
    {"   ", "   ", ""},
};

TEST(EscapedText, MeansNothingToHtml) {
    for (const Case& c : kCases)
        EXPECT_EQ(HtmlText::escaped(c.text), c.html);
}

TEST(EscapedText, MeansNothingToMarkdown) {
    for (const Case& c : kCases)
        EXPECT_EQ(MarkdownText::escaped(c.text), c.markdown);
}

TEST(EscapedText, NoMarkupIsLeftWhateverTheByte) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string html = HtmlText::escaped(std::string(1, static_cast<char>(byte)));
        EXPECT_EQ(html.find_first_of("<>\"'"), std::string::npos) << byte;
    }
}

} // namespace
