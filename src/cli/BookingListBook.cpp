// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/BookingListBook.h"

#include <cstdint>

#include "cli/FieldText.h"
#include "cli/ModelTables.h"
#include "datamodel/DataModel.h"

namespace {

void set(RecordNode& list, const char* field, const DataType& value) {
    ModelTables::field(list, field).setValue(value, NDX(), 0);
}

DataType number(std::size_t value) { return DataType::makeInteger(static_cast<std::int32_t>(value)); }

DataType text(const std::string& value) {
    DataType data;
    data = value.c_str();
    return data;
}

} // namespace

namespace BookingListBook {

std::optional<List> find(Store& store, const std::string& checksum) {
    std::optional<List> found;
    store.visitMatches("Buchungslisten", "Pruefsumme", checksum, [&found](RecordNode& list) {
        found = {FieldText::display(ModelTables::field(list, "ImportDatum")),
                 FieldText::display(ModelTables::field(list, "ImportFileName"))};
    });
    return found;
}

void keep(DataManager& model, RecordNode& account, const Facts& facts) {
    RecordNode* list = ModelTables::table(model.model().root(), "Buchungslisten").append();
    if (list == nullptr)
        return; // after 65,535 lists none is noted any more, and all are still imported
    const DataType day = ModelTables::field(account, "LetztesImportDatum").getValue();
    if (day.kind() != DataType::eEmpty)
        set(*list, "ImportDatum", day);
    set(*list, "ImportFileName", text(facts.fileName));
    set(*list, "Pruefsumme", text(facts.checksum));
    set(*list, "Datensaetze", number(facts.bookings));
    set(*list, "Bekannt", number(facts.known));
}

} // namespace BookingListBook
