// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreErrorTexts.h"

#include <cstddef>
#include <iterator>

namespace {

constexpr StoreErrorTexts kTexts[] = {
    {StoreErrorCode::missing, "store-missing", "Der Bestand „{path}“ wurde nicht gefunden.",
     "Prüfen Sie den Pfad; der erste Import legt einen Bestand an."},
    {StoreErrorCode::noDirectory, "store-no-directory",
     "Der Bestand „{path}“ kann nicht angelegt werden: Den Ordner dafür gibt es nicht.",
     "Legen Sie den Ordner an, oder prüfen Sie den Pfad."},
    {StoreErrorCode::isDirectory, "store-is-directory", "„{path}“ ist ein Ordner und kein Bestand.",
     "Nennen Sie eine Datei in diesem Ordner."},
    {StoreErrorCode::pathTooLong, "store-path-too-long", "Der Pfad des Bestands ist zu lang: „{path}“.",
     "Wählen Sie einen kürzeren Pfad."},
    {StoreErrorCode::notAStore, "store-not-a-store",
     "„{path}“ ist kein Bestand, sondern etwas anderes; es wurde nicht verändert.", "Nennen Sie eine andere Datei."},
    {StoreErrorCode::newerVersion, "store-newer-version",
     "Der Bestand „{path}“ stammt von einer neueren Programmversion ({detail}); er wurde nicht verändert.",
     "Aktualisieren Sie das Programm."},
    {StoreErrorCode::olderVersion, "store-older-version",
     "Der Bestand „{path}“ stammt von einer älteren Programmversion und kann hier nicht umgestellt werden, weil die "
     "Datei oder ihr Ordner schreibgeschützt ist.",
     "Öffnen Sie ihn einmal mit Schreibrecht, oder benutzen Sie eine Kopie."},
    {StoreErrorCode::busy, "store-busy", "Der Bestand „{path}“ wird gerade von {detail} benutzt.",
     "Warten Sie, bis es fertig ist, und versuchen Sie es noch einmal."},
    {StoreErrorCode::changed, "store-changed",
     "Der Bestand „{path}“ wurde inzwischen von einem anderen Programm geändert; es wurde nichts geschrieben.",
     "Versuchen Sie es noch einmal."},
    {StoreErrorCode::readOnly, "store-read-only",
     "Der Bestand „{path}“ kann nicht geschrieben werden: Die Datei oder ihr Ordner ist schreibgeschützt.",
     "Ändern Sie die Rechte, oder wählen Sie einen anderen Ort."},
    {StoreErrorCode::noPermission, "store-no-permission",
     "Der Bestand „{path}“ darf nicht gelesen werden: Die Rechte der Datei oder eines Ordners erlauben es nicht.",
     "Ändern Sie die Rechte, oder fragen Sie den Eigentümer der Datei."},
    {StoreErrorCode::full, "store-full",
     "Der Bestand „{path}“ kann nicht geschrieben werden: Der Datenträger ist voll oder das Kontingent erschöpft; der "
     "Bestand ist unverändert.",
     "Schaffen Sie Platz, und versuchen Sie es noch einmal."},
    {StoreErrorCode::damaged, "store-damaged", "Der Bestand „{path}“ ist beschädigt ({detail}).",
     "Stellen Sie ihn aus einer Sicherung wieder her."},
    {StoreErrorCode::badValue, "store-bad-value",
     "Der Bestand „{path}“ enthält einen Wert, der sich nicht lesen lässt: {detail}.",
     "Berichtigen Sie den Wert, oder stellen Sie den Bestand aus einer Sicherung wieder her."},
    {StoreErrorCode::tooManyRows, "store-too-many-rows",
     "Der Bestand „{path}“ hat eine Tabelle mit mehr als 65.535 Zeilen: {detail}.",
     "Entfernen Sie Zeilen, oder stellen Sie den Bestand aus einer Sicherung wieder her."},
    {StoreErrorCode::io, "store-io",
     "Der Bestand „{path}“ kann nicht gelesen oder geschrieben werden; das System meldet: {detail}.",
     "Prüfen Sie den Datenträger, und versuchen Sie es noch einmal."},
};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < std::size(kTexts); ++i) {
        if (static_cast<std::size_t>(kTexts[i].code) != i)
            return false;
    }
    return true;
}
static_assert(inOrder() && std::size(kTexts) == static_cast<std::size_t>(StoreErrorCode::io) + 1,
              "one entry per code, in the order of the codes");

} // namespace

const StoreErrorTexts& StoreErrorTexts::of(StoreErrorCode code) { return kTexts[static_cast<std::size_t>(code)]; }
