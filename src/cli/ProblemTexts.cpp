// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ProblemTexts.h"

#include <cstddef>
#include <iterator>

namespace {

using enum Severity;

constexpr ProblemTexts kTexts[] = {
    {Problem::fileMissing, "file-missing", error, "Die Datei „{}“ gibt es nicht.",
     "Prüfen Sie den Namen und den Ordner."},
    {Problem::fileIsDirectory, "file-is-directory", error, "„{}“ ist ein Ordner und keine Datei.",
     "Nennen Sie eine Datei in diesem Ordner."},
    {Problem::fileIsDevice, "file-is-device", error, "„{}“ ist ein Gerät und keine Datei.",
     "Nennen Sie eine Datei, oder „-“ für die Standardeingabe."},
    {Problem::fileUnreadable, "file-unreadable", error, "Die Datei „{}“ lässt sich nicht lesen: {}.",
     "Prüfen Sie die Rechte der Datei und ihrer Ordner."},
    {Problem::tempUnusable, "temp-unusable", error, "Im Ordner für Zwischendateien „{}“ lässt sich nichts ablegen: {}.",
     "Schaffen Sie dort Platz, oder nennen Sie in der Umgebungsvariablen TMPDIR einen anderen Ordner."},
    {Problem::formatUnsupported, "format-unsupported", error, "Das Format „{}“ lässt sich noch nicht lesen.",
     "„dmimport formats“ zeigt die Formate."},
    {Problem::lineTooLong, "line-too-long", error, "Die Zeile ist {} Byte lang; höchstens 4094 lassen sich lesen.",
     "Kürzen Sie die Zeile. Ist das wirklich eine Textdatei mit einem Datensatz je Zeile?"},
    {Problem::nulByte, "nul-byte", warning,
     "Die Zeile enthält ein Null-Zeichen; was dahinter steht, hat die Bibliothek nicht gelesen.", ""},
    {Problem::unbalancedQuote, "unbalanced-quote", warning,
     "Ein Anführungszeichen wird in der Zeile nicht geschlossen; die Spalten dahinter wurden zu einer.", ""},
    {Problem::recordOpen, "record-open", warning,
     "Dem letzten Datensatz fehlt die Endzeile „^“; die Bibliothek liest ihn nicht.",
     "Ergänzen Sie die Zeile, oder lassen Sie --verbatim weg."},
    {Problem::badDate, "bad-date", error,
     "„{}“ ist kein Datum, oder Tag und Monat stehen anders als in den übrigen Zeilen.",
     "Berichtigen Sie die Zeile, oder übernehmen Sie solche Datensätze mit --allow-undated ohne Datum."},
    {Problem::badAmount, "bad-amount", error,
     "„{}“ ist kein möglicher Betrag; er muss zwischen -9.999.999.999.999,99 und 9.999.999.999.999,99 liegen.",
     "Berichtigen Sie die Zeile."},
    {Problem::valueRefused, "value-refused", error, "Der Wert für „{}“ lässt sich nicht ablegen.",
     "Berichtigen Sie die Zeile."},
    {Problem::recordRefused, "record-refused", error,
     "Datensatz {}: Der Wert für „{}“ lässt sich nicht ablegen; damit endet der Import.",
     "Berichtigen Sie den Datensatz, oder behalten Sie mit --keep-partial die Datensätze vor ihm."},
    {Problem::tableFull, "table-full", error, "Der Bestand ist voll: Er fasst 65.535 Datensätze.",
     "Nennen Sie mit --store einen neuen Bestand für die übrigen Zeilen."},
    {Problem::noDate, "no-date", warning, "Der Datensatz wurde ohne Datum übernommen.", ""},
    {Problem::bookkeepingRefused, "bookkeeping-refused", error,
     "Der Bestand nimmt die Angabe „{}“ zur Importsitzung nicht an.",
     "„dmimport show counters“ zeigt seine Zähler; beginnen Sie mit --store einen neuen Bestand, wenn sie erschöpft "
     "sind."},
    {Problem::importFailed, "import-failed", error, "Die Datei wurde nicht übernommen. {}",
     "Prüfen Sie, ob die Datei zu ihrem Format passt; --format nennt ein anderes."},
    {Problem::documentRefused, "document-refused", error, "Das Dokument wurde nicht übernommen. {}",
     "Gelesen werden XML-Dokumente der Version 1 mit dem Wurzelelement „HomeBanking“."},
    {Problem::listMissing, "list-missing", error, "Das Dokument hat keine „{}“.",
     "Kontenlisten liest „dmimport accounts“, Buchungslisten liest „dmimport bookings“."},
    {Problem::accountsMissing, "accounts-missing", error, "Die Kontenliste nennt kein Konto.",
     "Prüfen Sie, ob in „kontoliste“ als Erstes ein „konto“ steht."},
    {Problem::accountsFull, "accounts-full", error,
     "Für {} der Konten ist kein Platz: Der Bestand fasst 65.535 Konten.",
     "Nennen Sie mit --store einen neuen Bestand."},
    {Problem::accountUnknown, "account-unknown", error, "Das Konto „{}“ (BLZ „{}“) steht nicht im Bestand.",
     "Gleichen Sie zuerst die Kontenliste ab: dmimport accounts DATEI. Führende Nullen zählen."},
    {Problem::accountNumberMissing, "account-number-missing", error,
     "Der Buchungsliste fehlt die Bankleitzahl oder die Kontonummer.",
     "Sie stehen als Attribute „blz“ und „ktonr“ in „buchungsliste“."},
    {Problem::accountFull, "account-full", error, "{} findet keinen Platz: Das Konto fasst 65.535 Buchungen.",
     "Nennen Sie mit --store einen neuen Bestand."},
    {Problem::bookingRefused, "booking-refused", error,
     "{}: Was in „{}“ steht, lässt sich nicht ablegen; damit endet die Liste.",
     "Ein Datum ist etwa 31.12.2004, mit Tag und Monat überall in derselben Reihenfolge, ein Betrag -1.234,56. "
     "Berichtigen Sie die Buchung, oder behalten Sie mit --keep-partial die Buchungen vor ihr."},
    {Problem::listEnded, "list-ended", error, "{} steht {}; was folgt, wurde nicht gelesen.",
     "Eine Liste enthält nichts als ihre Elemente „konto“ oder „buchung“, auch keinen Kommentar; entfernen Sie es."},
    {Problem::importedBefore, "imported-before", error,
     "Eine Datei mit genau diesem Inhalt ist schon importiert: Sitzung {} vom {}, „{}“.",
     "Soll sie noch einmal in den Bestand, sagen Sie es mit --again; „dmimport undo“ nimmt eine Sitzung zurück."},
    {Problem::listImportedBefore, "imported-before", error,
     "Eine Buchungsliste mit genau diesem Inhalt ist schon importiert, am {}, „{}“.",
     "Soll sie noch einmal in den Bestand, sagen Sie es mit --again; --new-only übernimmt nur, was noch fehlt."},
    {Problem::knownRecord, "known-record", note, "Schon im Bestand und nicht noch einmal übernommen: {}; {}.", ""},
    {Problem::doubtfulRecord, "doubtful-record", warning, "Übernommen, gleicht aber {}: {}.",
     "Prüfen Sie, ob es dieselbe Buchung ist."},
    {Problem::sessionUnknown, "session-unknown", error, "Die Importsitzung {} gibt es in diesem Bestand nicht.",
     "„dmimport show sessions“ zeigt die Sitzungen."},
    {Problem::sessionUndone, "session-undone", error, "Die Importsitzung {} ist schon zurückgenommen.", ""},
    {Problem::recordChanged, "record-changed", error,
     "Der Datensatz {} ({}) ist seit dem Import geändert worden; nichts wurde zurückgenommen.",
     "Löschen Sie geänderte Datensätze selbst, wenn sie wirklich wegsollen."},
    {Problem::exportEmpty, "nothing-to-export", note, "Nichts im Bestand passt; die Ausgabe enthält keinen Datensatz.",
     ""},
    {Problem::exportEmptyButAccounts, "nothing-to-export", note,
     "Der Bestand hat keine Datensätze aus Dateien, aber {}; die Ausgabe enthält keinen Datensatz.",
     "--account BLZ/KTO gibt die Buchungen eines Kontos aus, „dmimport show accounts“ zeigt die Konten."},
    {Problem::exportUndated, "export-undated", error, "Ohne Datum, und darum nicht in der Ausgabe: {}.",
     "Vollständig sind die Formate csv und json."},
    {Problem::exportDayOutside, "export-day-outside", error,
     "Mit einem Datum, das das Format nicht kennt, und darum nicht in der Ausgabe: {}.",
     "Vollständig sind die Formate csv und json."},
    {Problem::exportNoAmount, "export-no-amount", warning, "Ohne Betrag, in der Ausgabe mit dem Betrag 0: {}.", ""},
    {Problem::exportAmountRounded, "export-amount-rounded", warning,
     "Mit mehr Nachkommastellen, als das Format fasst, und darum gerundet: {}.", ""},
    {Problem::exportTextChanged, "export-text-changed", note,
     "Mit Zeichen, die das Format anders versteht, und darum durch ähnliche ersetzt: {}.", ""},
    {Problem::exportTextCut, "export-text-cut", warning,
     "Mit einem Text, der länger ist als eine Zeile des Formats, und darum gekürzt: {}.",
     "Vollständig sind die Formate csv und json."},
    {Problem::exportFieldDropped, "export-field-dropped", note, "Mit Angaben, für die das Format keinen Platz hat: {}.",
     "Vollständig ist das Format json."},
    {Problem::optionIgnored, "option-ignored", warning,
     "{} hat bei diesem Format keine Wirkung: Seine Spalten liegen fest.", ""},
    {Problem::profileChanged, "profile-changed", error,
     "Die Spalten passen nicht mehr zum Profil „{}“: neu sind {}, es fehlen {}.",
     "Prüfen Sie mit „dmimport inspect“, wie die Datei jetzt gelesen wird, und speichern Sie das Profil mit "
     "--save-profile unter demselben Namen neu."},
    {Problem::profileUsed, "profile-used", note, "Die Datei wird nach dem Profil „{}“ gelesen.", ""},
    {Problem::profileSaved, "profile-saved", note, "Das Profil „{}“ ist gespeichert.", ""},
    {Problem::profileNotSaved, "profile-not-saved", error, "Das Profil „{}“ wurde nicht gespeichert: {}",
     "Gespeichert wird, was sich entscheiden ließ; nennen Sie die fehlende Option mit."},
    {Problem::outputFailed, "output-failed", error, "Die Ausgabe lässt sich nicht schreiben.",
     "Ist der Datenträger voll?"},
    {Problem::reportFailed, "report-failed", error,
     "Der Bericht „{}“ lässt sich nicht schreiben: {}. Der Import selbst ist davon nicht berührt: Was übernommen "
     "wurde, "
     "steht im Bestand.",
     "„dmimport show sessions“ zeigt, was im Bestand ist."},
    {Problem::unexpected, "unexpected", error, "Unerwarteter Fehler: {}.", ""},
};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < std::size(kTexts); ++i) {
        if (static_cast<std::size_t>(kTexts[i].problem) != i)
            return false;
    }
    return true;
}
static_assert(inOrder() && std::size(kTexts) == static_cast<std::size_t>(Problem::unexpected) + 1,
              "one entry per problem, in the order of the problems");

} // namespace

const ProblemTexts& ProblemTexts::of(Problem problem) { return kTexts[static_cast<std::size_t>(problem)]; }

std::string ProblemTexts::filled(std::string_view pattern, std::initializer_list<std::string_view> arguments) {
    std::string text;
    const auto* argument = arguments.begin();
    while (!pattern.empty()) {
        if (pattern.substr(0, 2) == "{}" && argument != arguments.end()) {
            text += *argument++;
            pattern.remove_prefix(2);
        } else {
            text += pattern.front();
            pattern.remove_prefix(1);
        }
    }
    return text;
}
