// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

/// Another program that works on the file: SQLite alone, without the store.
class Sql {
public:
    explicit Sql(const std::filesystem::path& file) {
        if (sqlite3_open(file.c_str(), &m_handle) != SQLITE_OK)
            throw std::runtime_error("sqlite3_open");
        sqlite3_busy_timeout(m_handle, 3000);
    }
    ~Sql() { sqlite3_close(m_handle); }
    Sql(const Sql&) = delete;
    Sql& operator=(const Sql&) = delete;

    void run(const std::string& sql) { rows(sql); }

    /// Each row as its columns joined with "|", an SQL NULL as "NULL".
    std::vector<std::string> rows(const std::string& sql) {
        std::vector<std::string> result;
        const auto collect = [](void* out, int columns, char** values, char**) {
            std::string row;
            for (int i = 0; i < columns; ++i)
                row.append(i == 0 ? "" : "|").append(values[i] != nullptr ? values[i] : "NULL");
            static_cast<std::vector<std::string>*>(out)->push_back(row);
            return 0;
        };
        char* message = nullptr;
        if (sqlite3_exec(m_handle, sql.c_str(), collect, &result, &message) != SQLITE_OK) {
            const std::string text = message != nullptr ? message : "error";
            sqlite3_free(message);
            throw std::runtime_error(sql + ": " + text);
        }
        return result;
    }
    std::string value(const std::string& sql) { return rows(sql).at(0); }

private:
    sqlite3* m_handle = nullptr;
};
