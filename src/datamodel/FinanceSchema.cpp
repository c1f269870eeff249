// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/FinanceSchema.h"

#include <utility>

#include "datamodel/TableSpec.h"

namespace {

constexpr bool kTakesZeroDate = true;

std::vector<TableSpec> oneTable(const char* name, RecordSpec row) {
    std::vector<TableSpec> tables;
    tables.push_back({name, std::move(row)});
    return tables;
}

/// A record of the file imports. Category and budget records carry no date. The last two fields are not the import
/// library's: the line of the file where the record begins, and whether somebody has edited it since.
RecordSpec dataSetRow() {
    return {{{"Empfaenger", DataType::eString},
             {"Kategorie", DataType::eString},
             {"Unterkategorie", DataType::eString},
             {"Verwendungszweck", DataType::eString},
             {"Buchungstext", DataType::eString},
             {"Datum", DataType::eDate, kTakesZeroDate},
             {"Betrag", DataType::eCurrency},
             {"ImportID", DataType::eInteger},
             {"UniqueID", DataType::eInteger},
             {"Zeile", DataType::eInteger},
             {"Geaendert", DataType::eBoolean}},
            {}};
}

/// The first five fields are the import library's; the others tell what became of the file.
RecordSpec importSessionRow() {
    return {{{"ImportDatum", DataType::eDate},
             {"ImportInfo", DataType::eString},
             {"ImportID", DataType::eInteger},
             {"ImportTyp", DataType::eInteger},
             {"ImportFileName", DataType::eString},
             {"Pruefsumme", DataType::eString},
             {"Datensaetze", DataType::eInteger},
             {"Abgelehnt", DataType::eInteger},
             {"Bekannt", DataType::eInteger},
             {"Summe", DataType::eCurrency},
             {"ErsterTag", DataType::eDate},
             {"LetzterTag", DataType::eDate},
             {"Zurueckgenommen", DataType::eBoolean}},
            {}};
}

/// A booking of an account of the home-banking exchange.
RecordSpec bookingRow() {
    return {{{"BuchungsID", DataType::eString},
             {"BuchungsDatum", DataType::eDate},
             {"ValutaDatum", DataType::eDate},
             {"GVCode", DataType::eString},
             {"Betrag", DataType::eCurrency},
             {"Verwendungszweck", DataType::eString},
             {"Steuerrelevant", DataType::eBoolean},
             {"Empfaenger", DataType::eString},
             {"Notiz", DataType::eString},
             {"Kategorie", DataType::eString},
             {"UniqueID", DataType::eInteger}},
            {}};
}

RecordSpec accountRow() {
    return {{{"BLZ", DataType::eString},
             {"KtoNummer", DataType::eString},
             {"ImportTyp", DataType::eInteger},
             {"Bezeichnung", DataType::eString},
             {"ExistsInHB", DataType::eBoolean},
             {"LetztesImportDatum", DataType::eDate},
             {"LetzteBuchungsId", DataType::eString},
             {"NeueBuchungen", DataType::eInteger}},
            oneTable("DataSets", bookingRow())};
}

/// A list of bookings that was imported: what a session is to the file imports. Not the import library's.
RecordSpec bookingListRow() {
    return {{{"ImportDatum", DataType::eDate},
             {"ImportFileName", DataType::eString},
             {"Pruefsumme", DataType::eString},
             {"Datensaetze", DataType::eInteger},
             {"Bekannt", DataType::eInteger}},
            {}};
}

} // namespace

RecordSpec makeFinanceSchema() {
    std::vector<TableSpec> tables;
    tables.push_back({"DataSets", dataSetRow()});
    tables.push_back({"Importsessions", importSessionRow()});
    tables.push_back({"HomeBankingImport", accountRow()});
    tables.push_back({"Buchungslisten", bookingListRow()});
    return {{{"NextImportID", DataType::eInteger},
             {"NextUniqueID", DataType::eInteger},
             {"LetztesImportDatum", DataType::eDate},
             {"NeueDatenVorhanden", DataType::eBoolean}},
            std::move(tables)};
}
