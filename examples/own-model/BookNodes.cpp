// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "BookNodes.h"

#include <cmath>

#include "Texts.h"

// Members

Member member(std::string& text) {
    return {[&text] {
                DataType value;
                value = latin1FromUtf8(text).c_str();
                return value;
            },
            [&text](const DataType& value) {
                if (value.kind() != DataType::eString)
                    return false;
                text = utf8FromLatin1(value.asString(true, 2));
                return true;
            }};
}

Member member(int& number) {
    return {[&number] { return DataType::makeInteger(number); },
            [&number](const DataType& value) {
                if (value.kind() != DataType::eInteger)
                    return false;
                number = value.getInt();
                return true;
            }};
}

Member member(bool& flag) {
    return {[&flag] { return DataType::makeBoolean(flag); },
            [&flag](const DataType& value) {
                if (value.kind() != DataType::eBoolean)
                    return false;
                flag = value.getBoolean();
                return true;
            }};
}

Member member(Day& day) {
    return {[&day] {
                DataType value;
                value = DMDate(day.day, day.month, day.year);
                return value;
            },
            [&day](const DataType& value) {
                // A text that is no date arrives as the zero date: this book wants a day.
                const DMDate date = value.getDate();
                if (value.kind() != DataType::eDate || date.isZero())
                    return false;
                day = {date.year(), date.month(), date.day()};
                return true;
            }};
}

Member member(long long& cents) {
    return {[&cents] { return DataType::makeCurrency(static_cast<double>(cents) / 100); },
            [&cents](const DataType& value) {
                if (value.kind() != DataType::eCurrency)
                    return false;
                cents = std::llround(value.getCurrency() * 100);
                return true;
            }};
}

// Records

RecordNode::RecordNode(const Members& members, Tables tables) : m_tables(std::move(tables)) {
    for (const auto& [name, member] : members)
        m_fields.emplace(name, std::make_unique<FieldNode>(member));
}

Node* RecordNode::child(const std::string& name) const {
    if (const auto field = m_fields.find(name); field != m_fields.end())
        return field->second.get();
    const auto table = m_tables.find(name);
    return table != m_tables.end() ? table->second : nullptr;
}

// The names are the library's. Do not let anybody assign a column to a field that
// is not listed: its records would stay half filled, uncounted and without a text.
namespace {

RecordNode::Members membersOfBooking(Booking& booking) {
    return {{"Datum", member(booking.day)},        {"Betrag", member(booking.cents)},
            {"Empfaenger", member(booking.payee)}, {"Verwendungszweck", member(booking.purpose)},
            {"ImportID", member(booking.import)},  {"UniqueID", member(booking.number)}};
}

RecordNode::Members membersOfImport(ImportNote& note) {
    return {{"ImportDatum", member(note.day)},
            {"ImportInfo", member(note.remark)},
            {"ImportID", member(note.number)},
            {"ImportTyp", member(note.format)},
            {"ImportFileName", member(note.file)}};
}

} // namespace

BookTree::BookTree(Book& book)
    : m_bookings(book.bookings, membersOfBooking), m_imports(book.imports, membersOfImport),
      m_root({{"NextImportID", member(book.nextImport)},
              {"NextUniqueID", member(book.nextBooking)},
              {"LetztesImportDatum", member(book.lastImport)},
              {"NeueDatenVorhanden", member(book.hasNews)}},
             {{"DataSets", &m_bookings}, {"Importsessions", &m_imports}}) {}
