// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Transliteration.h"

#include <memory>

#include <unicode/translit.h>
#include <unicode/unistr.h>

#include "intake/Windows1252.h"

namespace {

// What typographers distinguish and books do not; the general rules would drop some of these.
struct Special {
    char32_t character;
    const char* replacement;
};
constexpr Special kSpecials[] = {
    {0x2212, "-"}, // minus sign
    {0x2010, "-"}, {0x2011, "-"}, {0x2012, "-"}, {0x2015, "-"}, {0x2009, " "},
    {0x202F, " "}, {0x2007, " "}, {0x2002, " "}, {0x2003, " "}, {0x3000, " "}, // spaces of all widths
    {0x200B, ""},  {0x200C, ""},  {0x200D, ""},  {0x2060, ""},  {0xFEFF, ""},  // without width
    {0x200E, ""},  {0x200F, ""},  {0x202A, ""},  {0x202B, ""},  {0x202C, ""},
    {0x202D, ""},  {0x202E, ""},  {0x2028, " "}, {0x2029, " "},
};

const icu::Transliterator* latinRules() {
    static const std::unique_ptr<icu::Transliterator> rules = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Transliterator> made(
            icu::Transliterator::createInstance("Any-Latin; NFKD; [:Mn:] Remove; Latin-ASCII", UTRANS_FORWARD, status));
        return U_SUCCESS(status) != 0 ? std::move(made) : nullptr;
    }();
    return rules.get();
}

} // namespace

namespace Transliteration {

std::string toHostBytes(char32_t character) {
    for (const Special& special : kSpecials) {
        if (special.character == character)
            return special.replacement;
    }
    icu::UnicodeString text(static_cast<UChar32>(character));
    if (const icu::Transliterator* rules = latinRules())
        rules->transliterate(text);
    std::string out;
    for (int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        if (const auto byte = Windows1252::byteOf(static_cast<char32_t>(text.char32At(i))); byte && *byte != '\0')
            out += *byte;
    }
    return out.empty() ? "?" : out;
}

} // namespace Transliteration
