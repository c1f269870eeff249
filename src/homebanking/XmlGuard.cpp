// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlGuard.h"

#include <QtCore/QByteArray>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "homebanking/XmlLimits.h"
#include "homebanking/XmlTextScanner.h"
#include "homebanking/XmlTreeReader.h"

namespace {

// Indexed by XmlLimits::Fault.
constexpr const char* kTexts[] = {
    nullptr,
    "Die Elemente sind mehr als 1000 Ebenen tief verschachtelt.",
    "Ein Element hat mehr als 1000 Attribute.",
    "Das Dokument vereinbart mehr als 16 Präfixe für Namensräume."_latin1,
    "Die Dokumenttyp-Deklaration (DOCTYPE) ist zu umfangreich. Bitte das Dokument ohne sie schreiben.",
};

const char* textOf(XmlLimits::Fault fault) { return kTexts[static_cast<int>(fault)]; }

} // namespace

namespace XmlGuard {

const char* findFault(const QByteArray& bytes) {
    XmlTextScanner scanner;
    XmlTreeReader::scan(bytes, scanner);
    if (XmlLimits::areKept(scanner) && !scanner.hasInternalSubset())
        return nullptr;
    // Nested groups of a content model are read by recursion.
    if (scanner.groups() > XmlLimits::kMostGroups)
        return textOf(XmlLimits::Fault::entities);
    XmlLimits limits(scanner);
    XmlTreeReader::read(bytes, scanner, limits);
    return textOf(limits.fault());
}

} // namespace XmlGuard
