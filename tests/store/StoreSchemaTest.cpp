// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <map>

#include "datamodel/FinanceSchema.h"
#include "datamodel/TableSpec.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"
#include "store/StoreVersions.h"
#include "store/TableLayout.h"

namespace {

const std::map<DataType::E_Kind, std::string> kColumnTypes = {
    {DataType::eInteger, "INTEGER"}, {DataType::eCurrency, "REAL"},   {DataType::eString, "TEXT"},
    {DataType::eDate, "TEXT"},       {DataType::eBoolean, "INTEGER"},
};

class StoreSchema : public ::testing::Test {
protected:
    StoreSchema() { Store::open(m_file, Store::Access::readWrite).commit(); }

    void expectColumns(const TableLayout& layout) {
        std::vector<std::string> expected = {"id|INTEGER"};
        if (layout.hasOwner())
            expected.push_back("KontoID|INTEGER");
        for (const FieldSpec& field : layout.spec().fields())
            expected.push_back(field.name + "|" + kColumnTypes.at(field.kind));
        EXPECT_EQ(expected, Sql(m_file).rows("SELECT name, type FROM pragma_table_info('" + layout.name() + "')"))
            << layout.name();
        ++m_tables;
        for (const TableLayout& nested : layout.nested())
            expectColumns(nested);
    }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
    int m_tables = 0;
};

} // namespace

TEST_F(StoreSchema, ColumnsOfTheFileAreTheFieldsOfTheModel) {
    const RecordSpec schema = makeFinanceSchema();
    expectColumns(TableLayout(schema));
    EXPECT_EQ(6, m_tables);
    // Beside the model's tables only the row counts.
    EXPECT_EQ("7", Sql(m_file).value("SELECT count(*) FROM sqlite_master WHERE type = 'table'"));
}

TEST_F(StoreSchema, TableWithoutANameInTheFileIsRefused) {
    std::vector<TableSpec> tables;
    tables.push_back({"Unbekannt", RecordSpec({{"Feld", DataType::eString}}, {})});
    const RecordSpec schema({{"Feld", DataType::eString}}, std::move(tables));
    EXPECT_THROW(TableLayout{schema}, std::logic_error);
}

TEST_F(StoreSchema, FileSaysWhatItIs) {
    EXPECT_EQ("1145913905", Sql(m_file).value("PRAGMA application_id")); // "DMB1"
    EXPECT_EQ(StoreVersions::ours(), Sql(m_file).value("PRAGMA user_version"));
    EXPECT_EQ("ok", Sql(m_file).value("PRAGMA integrity_check"));
}

TEST_F(StoreSchema, QuestionsOfAPersonAreAnsweredDirectly) {
    {
        Store store = Store::open(m_file, Store::Access::readWrite);
        RecordNode& record = *ModelAccess::table(store.model(), "DataSets").append();
        ModelAccess::set(record, "Datum", ModelAccess::date(31, 12, 2004));
        ModelAccess::set(record, "Betrag", ModelAccess::amount(-12.5));
        ModelAccess::set(record, "Empfaenger", ModelAccess::text("M\xFCller \x80"));
        store.commit();
    }
    EXPECT_EQ("2004-12-31|-12.5|Müller €|2004",
              Sql(m_file).value("SELECT Datum, Betrag, Empfaenger, strftime('%Y', Datum) FROM DataSets"));
}

namespace {

/// The part of `text` from `from` up to the next `to` (or the end).
std::string between(const std::string& text, const std::string& from, const std::string& to) {
    const std::size_t begin = text.find(from);
    if (begin == std::string::npos)
        return {};
    const std::size_t content = begin + from.size();
    return text.substr(content, text.find(to, content) - content);
}

} // namespace

TEST_F(StoreSchema, DocumentNamesEveryColumnUnderItsTable) {
    const std::string document = StoreFolder::bytes(STORE_DOCUMENT);
    Sql sql(m_file);
    for (const std::string& table : sql.rows("SELECT name FROM sqlite_master WHERE type = 'table'")) {
        // The paragraph that the table's name begins, and the list of columns behind it.
        const std::string section = between(document, "\n`" + table + "`: ", "\n\n`");
        ASSERT_FALSE(section.empty()) << table;
        for (const std::string& column :
             sql.rows("SELECT name FROM pragma_table_info('" + table + "') WHERE name <> 'id'"))
            EXPECT_NE(std::string::npos, section.find("`" + column + "`")) << table << "." << column;
    }
}

TEST_F(StoreSchema, QuestionsOfTheDocumentAreAnswered) {
    const std::string questions = between(StoreFolder::bytes(STORE_DOCUMENT), "```sql file=fragen.sql\n", "```");
    ASSERT_FALSE(questions.empty());
    EXPECT_NO_THROW(Sql(m_file).run(questions));
}
