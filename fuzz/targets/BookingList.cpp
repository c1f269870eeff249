// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "homebanking/ImportHomeBankingData.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/HomeBankingModel.h"
#include "support/require.h"

// A document of the home-banking exchange, read as a booking list.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view document = FuzzInput(bytes, size).rest();
    const HomeBankingModel model;
    const std::string before = model.text();

    ImportHomeBankingData door;
    const bool read = door.importAccountingEntries(model.input(document));
    const std::string after = model.text();
    const std::string error = door.getErrorMsg();
    const int bookings = model.bookings();
    require(read || error.empty() || after == before, "a failure with a text changes nothing");
    require(model.accounts() == 2, "bookings make no account");
    require(model.model().rows("HomeBankingImport/2/DataSets") == 0, "an account without numbers takes no booking");
    require(model.model().rows("DataSets") == 0, "bookings go to accounts alone");

    const DataType told = model.model().value("HomeBankingImport/1/NeueBuchungen");
    require(read || told.kind() == DataType::eEmpty, "a failure is not written down as an import");
    require(told.kind() == DataType::eEmpty || told.getInt() == bookings, "an account knows how many came");
    require(told.kind() != DataType::eEmpty || !read || after == before, "and an import is written down");
    const int identified = model.model().integer("NextUniqueID") - 1;
    require(identified == bookings || (!read && identified == bookings - 1), "all but a booking that failed have IDs");

    const HomeBankingModel other;
    require(door.importAccountingEntries(other.input(document)) == read && other.text() == after,
            "a list does the same twice");
    SmartDate::sm_order = 0;
    require(door.importAccountingEntries(other.input(document)) == read && other.bookings() == 2 * bookings,
            "repeats are not recognised");
    return 0;
}
