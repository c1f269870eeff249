// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlGuard.h"

#include <algorithm>

#include <QtCore/QBuffer>
#include <QtXml/QXmlInputSource>
#include <QtXml/QXmlSimpleReader>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "homebanking/XmlLimitHandler.h"
#include "homebanking/XmlTextScanner.h"

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // see XmlLimitHandler

namespace {

/// What entities may add to any document, in UTF-16 units; a longer one may double.
constexpr std::size_t kFreeExpansion = std::size_t{256} * 1024;

/// Feeds `use` with a source of the document's characters, decoded piece by
/// piece as for the tree's own reader.
template <typename Use>
void withSource(const QByteArray& bytes, Use use) {
    QBuffer buffer;
    buffer.setData(bytes);
    QXmlInputSource source(&buffer);
    use(source);
}

XmlTextScanner scan(const QByteArray& bytes) {
    XmlTextScanner scanner;
    withSource(bytes, [&scanner](QXmlInputSource& source) {
        for (QString piece = source.data(); !piece.isEmpty(); piece = source.data()) {
            const auto* text = reinterpret_cast<const char16_t*>(piece.utf16());
            scanner.read(text, text + piece.size());
            source.fetchData();
        }
    });
    return scanner;
}

bool isModest(const XmlTextScanner& scanner) {
    return scanner.deepestLevel() <= XmlLimitHandler::kDeepestLevel &&
           scanner.mostAttributes() <= XmlLimitHandler::kMostAttributes &&
           scanner.prefixes() < XmlLimitHandler::kMostPrefixes; // one more has no prefix, and no colon
}

XmlLimitHandler::Fault readAgain(const QByteArray& bytes, const XmlTextScanner& scanner) {
    const std::size_t expansionLimit = std::max(scanner.length(), kFreeExpansion);
    XmlLimitHandler handler(scanner.references(), expansionLimit, !isModest(scanner));
    withSource(bytes, [&handler](QXmlInputSource& source) {
        QXmlSimpleReader reader;
        reader.setContentHandler(&handler);
        reader.setDeclHandler(&handler);
        reader.setLexicalHandler(&handler);
        reader.parse(source); // its errors are found again, and reported, by the tree's reader
    });
    return handler.fault();
}

// Indexed by XmlLimitHandler::Fault.
constexpr const char* kTexts[] = {
    nullptr,
    "Die Elemente sind mehr als 1000 Ebenen tief verschachtelt.",
    "Ein Element hat mehr als 1000 Attribute.",
    "Das Dokument vereinbart mehr als 16 Präfixe für Namensräume."_latin1,
    "Die Dokumenttyp-Deklaration (DOCTYPE) ist zu umfangreich. Bitte das Dokument ohne sie schreiben.",
};

const char* textOf(XmlLimitHandler::Fault fault) { return kTexts[static_cast<int>(fault)]; }

} // namespace

namespace XmlGuard {

const char* findFault(const QByteArray& bytes) {
    const XmlTextScanner scanner = scan(bytes);
    if (isModest(scanner) && !scanner.hasInternalSubset())
        return nullptr;
    // Nested groups of a content model are read by recursion.
    if (scanner.groups() > XmlLimitHandler::kMostGroups)
        return textOf(XmlLimitHandler::Fault::entities);
    return textOf(readAgain(bytes, scanner));
}

} // namespace XmlGuard
