// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/MessageTexts.h"

#include <array>

namespace {

using Messages::Text;

constexpr std::array<Text, static_cast<std::size_t>(MessageId::count)> kTexts = {{
    {MessageId::noTable, "no-bookings", false,
     "In der Datei wurde keine Tabelle mit Datum und Betrag gefunden. Falls sie eine enthält, bitte mit --columns "
     "angeben, welche Spalte das Datum und welche der Betrag ist, zum Beispiel --columns \"0=Datum,3=Betrag\"."},
    {MessageId::columnsEmpty, "no-bookings", false,
     "In den Spalten, die --columns nennt, stehen in keiner Zeile ein Datum und ein Betrag (Trennzeichen „%1“). Bitte "
     "--columns und --delimiter prüfen; „dmimport preview --unassigned“ zeigt die Spalten mit ihren Nummern."},
    {MessageId::columnOutside, "column-outside", false,
     "Die Spalte %1 für „%2“ gibt es in keiner Zeile (Trennzeichen „%3“). Bitte --columns und --delimiter prüfen; "
     "„dmimport preview --unassigned“ zeigt die Spalten mit ihren Nummern."},
    {MessageId::noQifRecords, "no-bookings", false,
     "In der Datei wurden keine Buchungen gefunden: Es gibt keinen Abschnitt (wie „!Type:Bank“) mit Datensätzen."},
    {MessageId::decimalMarkAmbiguous, "decimal-mark-ambiguous", false,
     "Beim Betrag „%1“ ist nicht zu erkennen, welches Zeichen die Dezimalstellen abtrennt: Die Beträge der Datei "
     "sprechen für beide. Bitte mit --decimal , oder --decimal . festlegen."},
    {MessageId::dateOrderAmbiguous, "date-order-ambiguous", false,
     "Beim Datum „%1“ ist nicht zu erkennen, ob Tag oder Monat vorn steht. Bitte mit --date-order dmy, mdy oder ymd "
     "festlegen."},
    {MessageId::amountColumnAmbiguous, "amount-column-ambiguous", false,
     "Mehrere Spalten könnten der Betrag sein (%2 und %3, gezählt ab 0). Bitte mit --columns festlegen, zum Beispiel "
     "--columns \"%1=Datum,%2=Betrag\"."},
    {MessageId::signAmbiguous, "sign-ambiguous", false,
     "Kein Betrag hat ein Vorzeichen, obwohl in der Tabelle Einnahmen und Ausgaben stehen. Bitte die Ausgaben in der "
     "Datei mit einem Minus versehen; sollen alle Beträge gelten, wie sie dastehen, die Spalten mit --columns "
     "festlegen."},
    {MessageId::ownExportDamaged, "export-damaged", false,
     "Die Datei ist eine Ausgabe von „dmimport export“, aber hier beschädigt: Ein Anführungszeichen oder ein "
     "Trennzeichen fehlt oder ist zu viel. Bitte die Zeile berichtigen, oder mit --columns sagen, wie die Datei zu "
     "lesen ist."},
    {MessageId::badDate, "bad-date", true,
     "Das Datum „%1“ ist nicht lesbar. Bitte die Zeile in der Datei berichtigen oder mit --allow-undated ohne Datum "
     "übernehmen."},
    {MessageId::wordForDate, "bad-date", true,
     "Statt eines Datums steht da „%1“. Bitte die Zeile in der Datei berichtigen oder mit --allow-undated ohne Datum "
     "übernehmen."},
    {MessageId::dateMissing, "date-missing", true,
     "Die Zeile hat einen Betrag, aber kein Datum. Bitte das Datum in der Datei ergänzen oder mit --allow-undated "
     "übernehmen."},
    {MessageId::badAmount, "bad-amount", true,
     "Der Betrag „%1“ ist nicht eindeutig lesbar. Bitte die Zeile in der Datei berichtigen."},
    {MessageId::amountMissing, "amount-missing", true,
     "Die Zeile hat ein Datum, aber keinen Betrag. Bitte den Betrag in der Datei ergänzen."},
    {MessageId::signUnknown, "sign-unknown", true,
     "Ob der Betrag „%1“ eine Einnahme oder eine Ausgabe ist, ergibt sich bei den übrigen Zeilen aus dem Saldo, bei "
     "der ältesten nicht. Bitte das Vorzeichen in der Datei ergänzen."},
    {MessageId::tooManyFields, "too-many-fields", true,
     "Die Zeile hat mehr Felder, als die Tabelle Spalten hat; vermutlich steht das Trennzeichen in einem Text, und "
     "was dahinter kommt, ist verschoben. Bitte den Text in Anführungszeichen setzen."},
    {MessageId::bookingTooLong, "line-too-long", true,
     "Die Buchung ist länger als %1 Zeichen. Bitte ihren Text in der Datei kürzen."},
    {MessageId::qifBadDate, "bad-date", true,
     "Das Datum „%1“ ist nicht lesbar. Der Datensatz ab Zeile %2 wird nicht übernommen."},
    {MessageId::qifBadAmount, "bad-amount", true,
     "Der Betrag „%1“ ist nicht eindeutig lesbar. Der Datensatz ab Zeile %2 wird nicht übernommen."},
    {MessageId::qifLineTooLong, "line-too-long", true,
     "Die Zeile ist länger als %1 Zeichen. Der Datensatz ab Zeile %2 wird nicht übernommen."},
    {MessageId::qifNotClosed, "record-not-closed", true,
     "Dem Datensatz ab Zeile %2 fehlt die Endzeile „^“; er wird nicht übernommen. Bitte sie in der Datei ergänzen."},
    {MessageId::pending, "pending", false,
     "Der Umsatz ist erst vorgemerkt und noch nicht gebucht; er wird übernommen, sobald die Bank ihn als gebucht "
     "führt."},
    {MessageId::notBooked, "not-booked", false,
     "Der Umsatz wurde abgelehnt oder storniert und nie gebucht („%1“); er wird nicht übernommen."},
    {MessageId::balanceLine, "balance-line", false,
     "Die Zeile nennt einen Saldo oder eine Summe und ist keine Buchung."},
    {MessageId::notABooking, "not-a-booking", false,
     "Die Zeile enthält weder ein Datum noch einen Betrag und wird übergangen."},
    {MessageId::balanceBreak, "balance-break", false,
     "Der Saldo passt nicht zum vorigen Saldo und dem Betrag. Bitte prüfen, ob Buchungen fehlen."},
    {MessageId::mixedCurrencies, "mixed-currencies", false,
     "Die Beträge stehen in mehreren Währungen (%1). Sie werden übernommen, wie sie dastehen, ohne Umrechnung."},
    {MessageId::characterReplaced, "character-replaced", false,
     "Das Zeichen „%1“ hat im Bestand keinen Platz und wurde %2-mal durch „%3“ ersetzt, hier zum ersten Mal."},
    {MessageId::encodingBroken, "encoding-broken", false,
     "Die Datei enthält Bytes, die es in ihrer Kodierung nicht gibt; sie wurden durch „?“ ersetzt. Falls Umlaute "
     "fehlen, bitte mit --encoding eine andere Kodierung angeben."},
    {MessageId::zeroBytes, "zero-bytes", false, "Die Datei enthält Nullbytes; in Texten werden sie zu Leerzeichen."},
    {MessageId::qifClosed, "record-closed", false,
     "Dem letzten Datensatz fehlte die Endzeile „^“; er wird trotzdem übernommen."},
    {MessageId::qifFieldRepeated, "field-repeated", false,
     "Das Feld „%1“ steht im Datensatz ein zweites Mal, mit anderem Inhalt; es gilt das erste."},
    {MessageId::qifUnknownSection, "unknown-section", false, "Der Abschnitt „%1“ ist unbekannt und wird übergangen."},
    {MessageId::qifAdoptedSection, "unknown-section", false,
     "Der Abschnitt „%1“ ist unbekannt; seine Buchungen werden wie die eines Bankkontos gelesen."},
}};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        if (kTexts[i].id != static_cast<MessageId>(i) || kTexts[i].text.empty())
            return false;
    }
    return true;
}
static_assert(isInOrder(), "the table is indexed by MessageId");

} // namespace

namespace Messages {

std::span<const Text> table() { return kTexts; }

IntakeMessage make(MessageId id, int line, std::initializer_list<std::string_view> arguments) {
    const Text& row = kTexts[static_cast<std::size_t>(id)];
    IntakeMessage message{line, std::string(row.code), {}, row.refusal};
    if (line > 0)
        message.text = "Zeile " + std::to_string(line) + ": ";
    for (std::size_t i = 0; i < row.text.size(); ++i) {
        const std::size_t argument =
            row.text[i] == '%' && i + 1 < row.text.size() ? static_cast<std::size_t>(row.text[i + 1] - '1') : 9;
        if (argument < arguments.size()) {
            message.text += arguments.begin()[argument];
            ++i;
        } else {
            message.text += row.text[i];
        }
    }
    return message;
}

} // namespace Messages
