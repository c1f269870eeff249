// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/DmimportFixture.h"
#include "cli/HomeBankingTexts.h"

/// Runs the commands for the two home-banking documents.
class HomeBankingCommandTest : public DmimportTest {
protected:
    /// `COMMAND … --store bestand.db --json`, and its document.
    Json call(const std::string& command, std::vector<std::string> arguments, int status) const {
        arguments.insert(arguments.begin(), command);
        arguments.insert(arguments.end(), {"--store", kStore, "--json"});
        const Result result = run(arguments);
        EXPECT_EQ(result.status, status) << result.output << result.messages;
        return Json::parse(result.output);
    }
    /// The same for one file, with what is said of it.
    Json accounts(std::vector<std::string> arguments, int status) const {
        return onlyFile(call("accounts", std::move(arguments), status));
    }
    Json bookings(std::vector<std::string> arguments, int status) const {
        arguments.emplace_back("--again");
        return onlyFile(call("bookings", std::move(arguments), status));
    }

    /// Makes the account that booking lists of the tests name.
    void makeAccount() const {
        write("konto.xml", HomeBankingTexts::accountList(HomeBankingTexts::account("100", "0815", "Giro")));
        accounts({"konto.xml"}, 0);
    }

    /// One field of all rows that a view shows.
    std::vector<std::string> column(const std::string& table, const std::string& field) const {
        std::vector<std::string> values;
        for (const Json& row : show(table))
            values.push_back(row.at(field).is_string() ? row.at(field).get<std::string>() : row.at(field).dump());
        return values;
    }

    static std::string records(const Json& file) {
        const Json& records = file.at("records");
        return records.at("found").dump() + " " + records.at("imported").dump() + " " + records.at("refused").dump();
    }

private:
    static Json onlyFile(const Json& document) {
        EXPECT_EQ(document.size(), 1U) << document;
        EXPECT_EQ(document.at("files").size(), 1U);
        return document.at("files").at(0);
    }
};
