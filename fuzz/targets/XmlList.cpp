// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/XmlList.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "cli/XmlLines.h"
#include "cli/XmlText.h"
#include "homebanking/ImportHomeBankingData.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/HomeBankingModel.h"
#include "support/require.h"

// A document as the command reads it to tell people where in the file a record
// stands, beside the library's own reading. The first byte chooses the kind.
namespace {

void requireWithin(const std::optional<XmlList::Range>& range, std::size_t size) {
    require(!range || (range->begin <= range->end && range->end <= size), "a range lies in the text");
}

void requireSound(const XmlList& list, std::string_view text, const char* childTag) {
    requireWithin(list.records(), text.size());
    require(list.records().has_value() == (list.recordCount() > 0), "records have a place");
    require(!list.recordOffset(0) && !list.recordOffset(list.recordCount() + 1), "records count from 1");
    const std::vector<std::size_t> lines = XmlLines::ofRecords(text, list, list.recordCount());
    require(lines.size() == list.recordCount(), "every record has a line");
    for (std::size_t record = 1; record <= list.recordCount(); ++record) {
        const std::size_t offset = *list.recordOffset(record);
        require(offset < text.size() && text[offset] == '<', "a record begins with its tag");
        require(lines[record - 1] == XmlLines::numberOf(text, offset), "and knows its line");
        requireWithin(XmlLines::around(text, offset), text.size());
        const auto child = list.child(record, childTag);
        requireWithin(child, text.size());
        require(!child || child->begin > offset, "an element lies in its record");
        require(child || list.childText(record, childTag).empty(), "what is not there is empty");
    }
    require(!list.stranger() || list.stranger()->offset < text.size(), "a stranger stands in the text");
    const LineCounts counts = XmlLines::count(text, list.records());
    require(counts.read == counts.blank + counts.ignored + counts.preamble + counts.records + counts.footer,
            "every line is counted once");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const bool accounts = input.choice(2) == 0;
    const std::string_view document = input.rest();
    const XmlText text(document);
    const XmlList list(text.view(), accounts ? "kontoliste" : "buchungsliste", accounts ? "konto" : "buchung");
    requireSound(list, text.view(), accounts ? "blz" : "betrag");

    const HomeBankingModel model;
    ImportHomeBankingData door;
    const bool read =
        accounts ? door.updateAccountList(model.input(document)) : door.importAccountingEntries(model.input(document));
    if (list.isOpaque() || !read)
        return 0;
    require(list.isFound(), "a list that the library reads is found");
    const auto records = static_cast<int>(list.recordCount());
    require(accounts ? records > 0 : records == model.bookings(), "with as many records");
    return 0;
}
