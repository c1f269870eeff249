// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/NewRows.h"

#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <string_view>

#include "datamodel/RecordNode.h"
#include "store/StoredField.h"

struct NewRows::Table : sqlite3_vtab {
    const NewRows* rows = nullptr;
};

namespace {

/// A column's value on its way to SQLite.
class ColumnResult {
public:
    explicit ColumnResult(sqlite3_context* context) : m_context(context) {}

    void nothing() { sqlite3_result_null(m_context); }
    void number(std::int64_t value) { sqlite3_result_int64(m_context, value); }
    void real(double value) { sqlite3_result_double(m_context, value); }
    void text(std::string_view value) { give(value, SQLITE_STATIC); }
    void passingText(std::string_view value) { give(value, SQLITE_TRANSIENT); }

private:
    void give(std::string_view value, sqlite3_destructor_type lifetime) {
        // A null address would be NULL; an empty text is a text.
        const char* bytes = value.data() != nullptr ? value.data() : "";
        sqlite3_result_text(m_context, bytes, static_cast<int>(value.size()), lifetime);
    }

    sqlite3_context* m_context;
};

} // namespace

class NewRows::Cursor : public sqlite3_vtab_cursor {
public:
    explicit Cursor(const NewRows& rows) : sqlite3_vtab_cursor{}, m_rows(rows) {}

    void start() {
        m_number = m_rows.m_first;
        m_count = m_rows.m_table != nullptr ? m_rows.m_table->getNodeCount() : 0;
        find();
    }
    void next() {
        ++m_number;
        find();
    }
    bool isAtEnd() const { return m_number > m_count; }
    std::int64_t number() const { return m_number; }

    void column(int number, sqlite3_context* context) {
        const int field = number - (m_rows.m_layout->hasOwner() ? 1 : 0);
        if (field < 0)
            ColumnResult(context).number(m_rows.m_owner);
        else
            StoredField::give(m_fields[static_cast<std::size_t>(field)], m_buffer, ColumnResult(context));
    }

private:
    void find() {
        if (m_rows.m_table != nullptr && !isAtEnd())
            m_fields = m_rows.m_table->rowIfLoaded(m_number)->fields();
    }

    const NewRows& m_rows;
    unsigned m_number = 0;
    unsigned m_count = 0;
    std::span<const FieldNode> m_fields;
    std::string m_buffer;
};

/// No exception may pass through SQLite.
struct NewRows::Calls {
    static int connect(sqlite3* connection, void* rows, int, const char* const*, sqlite3_vtab** table,
                       char**) noexcept {
        const auto* owner = static_cast<const NewRows*>(rows);
        try {
            auto made = std::make_unique<Table>();
            made->rows = owner;
            const int result =
                sqlite3_declare_vtab(connection, ("CREATE TABLE x (" + owner->m_layout->columns() + ")").c_str());
            if (result == SQLITE_OK)
                *table = made.release();
            return result;
        } catch (const std::bad_alloc&) {
            return SQLITE_NOMEM;
        }
    }
    static int disconnect(sqlite3_vtab* table) noexcept {
        delete static_cast<Table*>(table);
        return SQLITE_OK;
    }
    static int bestIndex(sqlite3_vtab*, sqlite3_index_info*) noexcept { return SQLITE_OK; } // there is but one way
    static int open(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor) noexcept {
        *cursor = new (std::nothrow) Cursor(*static_cast<Table*>(table)->rows);
        return *cursor != nullptr ? SQLITE_OK : SQLITE_NOMEM;
    }
    static int close(sqlite3_vtab_cursor* cursor) noexcept {
        delete static_cast<Cursor*>(cursor);
        return SQLITE_OK;
    }
    static int filter(sqlite3_vtab_cursor* cursor, int, const char*, int, sqlite3_value**) noexcept {
        static_cast<Cursor*>(cursor)->start();
        return SQLITE_OK;
    }
    static int next(sqlite3_vtab_cursor* cursor) noexcept {
        static_cast<Cursor*>(cursor)->next();
        return SQLITE_OK;
    }
    static int isAtEnd(sqlite3_vtab_cursor* cursor) noexcept { return static_cast<Cursor*>(cursor)->isAtEnd() ? 1 : 0; }
    static int column(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int number) noexcept {
        try {
            static_cast<Cursor*>(cursor)->column(number, context);
            return SQLITE_OK;
        } catch (const std::bad_alloc&) {
            return SQLITE_NOMEM;
        }
    }
    static int rowId(sqlite3_vtab_cursor* cursor, sqlite3_int64* number) noexcept {
        *number = static_cast<Cursor*>(cursor)->number();
        return SQLITE_OK;
    }

    /// Without a call that creates one: the table is there and takes no statement to make.
    static const sqlite3_module& module() {
        static const sqlite3_module calls = [] {
            sqlite3_module made{};
            made.xConnect = connect;
            made.xDisconnect = disconnect;
            made.xBestIndex = bestIndex;
            made.xOpen = open;
            made.xClose = close;
            made.xFilter = filter;
            made.xNext = next;
            made.xEof = isAtEnd;
            made.xColumn = column;
            made.xRowid = rowId;
            return made;
        }();
        return calls;
    }
};

NewRows::NewRows(SqliteConnection& connection, const TableLayout& layout)
    : m_connection(&connection), m_layout(&layout), m_name("new_rows_of_" + layout.name()) {
    const int result = sqlite3_create_module_v2(connection.handle(), m_name.c_str(), &Calls::module(), this, nullptr);
    if (result != SQLITE_OK)
        connection.fail(result);
}

NewRows::~NewRows() { sqlite3_create_module_v2(m_connection->handle(), m_name.c_str(), nullptr, nullptr, nullptr); }

void NewRows::show(const TableNode& table, unsigned first, std::int64_t owner) {
    m_table = &table;
    m_first = first;
    m_owner = owner;
}
