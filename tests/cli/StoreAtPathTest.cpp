// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/StoreAtPath.h"

#include <cstdlib>

#include <gmock/gmock.h>

#include "cli/UsageError.h"

namespace {

/// The environment of one test.
class StoreAtPathTest : public ::testing::Test {
protected:
    ~StoreAtPathTest() override {
        set("HOME", m_home);
        set("XDG_DATA_HOME", m_data);
    }
    static void set(const char* name, const std::optional<std::string>& value) {
        if (value)
            ::setenv(name, value->c_str(), 1);
        else
            ::unsetenv(name);
    }
    static std::optional<std::string> get(const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
    }

private:
    std::optional<std::string> m_home = get("HOME");
    std::optional<std::string> m_data = get("XDG_DATA_HOME");
};

TEST_F(StoreAtPathTest, OptionIsTakenAsWritten) { EXPECT_EQ(StoreAtPath("a/b.db").path(), "a/b.db"); }

TEST_F(StoreAtPathTest, DefaultLiesInTheDataDirectory) {
    set("HOME", "/heim");
    set("XDG_DATA_HOME", std::nullopt);
    EXPECT_EQ(StoreAtPath(std::nullopt).path(), "/heim/.local/share/dmimport/bestand.db");
    set("XDG_DATA_HOME", "/daten");
    EXPECT_EQ(StoreAtPath(std::nullopt).path(), "/daten/dmimport/bestand.db");
    set("XDG_DATA_HOME", "daten");
    EXPECT_EQ(StoreAtPath(std::nullopt).path(), "/heim/.local/share/dmimport/bestand.db")
        << "a relative one does not count";
}

TEST_F(StoreAtPathTest, WithoutADirectoryTheOptionIsNeeded) {
    set("HOME", std::nullopt);
    set("XDG_DATA_HOME", "");
    EXPECT_THROW(StoreAtPath{std::nullopt}, UsageError);
    EXPECT_THROW(StoreAtPath{""}, UsageError);
}

} // namespace
