// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/SystemText.h"

#include <cerrno>

namespace {

struct Entry {
    int number;
    const char* text;
};

constexpr Entry kTexts[] = {
    {EACCES, "die Rechte erlauben es nicht"},
    {EPERM, "die Rechte erlauben es nicht"},
    {ENOENT, "es gibt sie nicht"},
    {ENOTDIR, "ein Teil des Pfades ist kein Ordner"},
    {EISDIR, "es ist ein Ordner"},
    {ELOOP, "die Verweise darauf führen im Kreis"},
    {ENAMETOOLONG, "der Name ist zu lang"},
    {EIO, "der Datenträger meldet einen Fehler"},
    {ENOSPC, "der Datenträger ist voll"},
    {EDQUOT, "das Kontingent ist erschöpft"},
    {EFBIG, "die größte erlaubte Dateigröße ist erreicht"},
    {EROFS, "der Datenträger ist schreibgeschützt"},
    {EMFILE, "zu viele Dateien sind offen"},
    {ENFILE, "zu viele Dateien sind offen"},
    {ENXIO, "es antwortet niemand"},
};

} // namespace

std::string systemText(int number) {
    for (const Entry& entry : kTexts) {
        if (entry.number == number)
            return entry.text;
    }
    return "Systemfehler " + std::to_string(number);
}
