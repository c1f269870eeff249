// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/OptionTable.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace {

const OptionSpec kOptions[] = {
    {"--store", "DATEI", &Options::store, "der Bestand; ohne Angabe dmimport/bestand.db im Datenordner des Benutzers",
     "--store bestand.db"},
    {"--columns", "ZUORDNUNG", &Options::columns,
     "welche Spalte der Datei (ab 0) welches Feld füllt; ohne Angabe, was die Datei zeigt",
     "--columns \"0=Datum,3=Betrag\""},
    {"--unassigned", nullptr, &Options::unassigned, "alle Spalten zeigen, wie sie sind", "--unassigned"},
    {"--delimiter", "ZEICHEN", &Options::delimiter, "das Trennzeichen der Spalten, oder tab", "--delimiter \";\""},
    {"--header", nullptr, &Options::header, "die erste Zeile enthält Überschriften", "--header"},
    {"--no-header", nullptr, &Options::noHeader, "die erste Zeile ist schon ein Datensatz", "--no-header"},
    {"--encoding", "NAME", &Options::encoding, "latin1, cp1252, utf-8 oder utf-16; ohne Angabe, was die Datei zeigt",
     "--encoding cp1252"},
    {"--date-order", "NAME", &Options::dateOrder,
     "dmy, mdy oder ymd (Tag, Monat, Jahr); ohne Angabe, was die ganze Datei zeigt", "--date-order dmy"},
    {"--decimal", "ZEICHEN", &Options::decimal, "„,“ oder „.“; ohne Angabe, was die ganze Spalte zeigt", "--decimal ,"},
    {"--format", "NAME", &Options::format,
     "star-money, csv, qif, tax oder zasterhof; ohne Angabe nach der Endung der Datei, dann nach ihrem Inhalt",
     "--format csv"},
    {"--profile", "NAME", &Options::profile,
     "die Datei nach dem Profil dieses Namens lesen; ohne Angabe nach dem, dessen Spaltennamen passen",
     "--profile girokonto"},
    {"--save-profile", "NAME", &Options::saveProfile, "unter diesem Namen speichern, wie die Datei gelesen wird",
     "--save-profile girokonto"},
    {"--verbatim", nullptr, &Options::verbatim,
     "die Datei der Bibliothek geben, wie sie ist; Trennzeichen „,“, wenn nicht anders angegeben", "--verbatim"},
    {"--info", "TEXT", &Options::info, "Beschreibung, die mit der Importsitzung abgelegt wird",
     "--info \"Girokonto Mai\""},
    {"--allow-undated", nullptr, &Options::allowUndated,
     "Datensätze, deren Datum sich nicht lesen lässt, ohne Datum übernehmen", "--allow-undated"},
    {"--again", nullptr, &Options::again, "die Datei importieren, auch wenn ihr Inhalt schon importiert wurde",
     "--again"},
    {"--new-only", nullptr, &Options::newOnly,
     "nur übernehmen, was noch nicht im Bestand ist; das Übrige wird aufgezählt", "--new-only"},
    {"--report", "DATEI", &Options::report, "eine Seite über den Import schreiben, als .html oder .md",
     "--report bericht.html"},
    {"--keep-partial", nullptr, &Options::keepPartial, "bei einem Fehler behalten, was bis dahin übernommen wurde",
     "--keep-partial"},
    {"--to", "FORMAT", &Options::to, "das Format der Ausgabe: csv, json, hledger oder qif", "--to csv"},
    {"--session", "NUMMER", &Options::session, "nur die Datensätze dieser Importsitzung", "--session 3"},
    {"--since", "DATUM", &Options::since, "nur, was an diesem Tag oder danach gebucht ist", "--since 2024-01-01"},
    {"--until", "DATUM", &Options::until, "nur, was bis zu diesem Tag gebucht ist, ihn eingeschlossen",
     "--until 31.12.2024"},
    {"--account", "BLZ/KTO", &Options::account,
     "die Buchungen dieses Kontos, statt der Datensätze aus Dateien („dmimport show accounts“ zeigt die Konten)",
     "--account 10020030/4711"},
    {"--limit", "ANZAHL", &Options::limit, "höchstens so viele Zeilen", "--limit 20"},
    {"--json", nullptr, &Options::json, "maschinenlesbare Ausgabe", "--json"},
    {"--quiet", nullptr, &Options::quiet, "kein Fortschritt, keine Zusammenfassung", "--quiet"},
    {"--color", "WANN", &Options::color, "auto, always oder never", "--color never"},
};

} // namespace

namespace OptionTable {

std::span<const OptionSpec> all() { return kOptions; }

const OptionSpec& byName(const char* name) {
    const auto* found = std::find_if(std::begin(kOptions), std::end(kOptions), [name](const OptionSpec& option) {
        return std::string_view(option.name) == name;
    });
    if (found == std::end(kOptions))
        throw std::logic_error(std::string("no such option: ") + name);
    return *found;
}

} // namespace OptionTable
