// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "homebanking/ImportHomeBankingData.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/HomeBankingModel.h"
#include "support/require.h"

// A document of the home-banking exchange, read as an account list.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view document = FuzzInput(bytes, size).rest();
    const HomeBankingModel model;
    const std::string before = model.text();
    const int accountsBefore = model.accounts();

    ImportHomeBankingData door;
    const bool read = door.updateAccountList(model.input(document));
    const std::string after = model.text();
    const std::string error = door.getErrorMsg();
    require(read || !error.empty() || after == before, "a failure without a text changes nothing");
    require(read || error == "Keine Konten vorhanden." || after == before, "a document that is none changes nothing");
    require(read || model.accounts() == accountsBefore, "a list that fails makes no account");
    require(!read || model.model().integer("NextUniqueID") == 1, "accounts take no unique IDs");

    require(door.updateAccountList(model.input(document)) == read, "a list ends alike when read again");
    require(model.text() == after, "and then finds all its accounts");

    const HomeBankingModel other;
    ImportHomeBankingData otherDoor;
    require(otherDoor.updateAccountList(other.input(document)) == read && other.text() == after &&
                otherDoor.getErrorMsg() == error,
            "a list does the same twice");
    return 0;
}
