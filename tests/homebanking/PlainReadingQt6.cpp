// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/PlainReading.h"

#include <algorithm>

#include <QtCore/QString>
#include <QtCore/QXmlStreamReader>

PlainReading PlainReading::of(const std::u16string& document) {
    PlainReading met;
    QXmlStreamReader reader(QString::fromStdU16String(document));
    int level = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        level -= token == QXmlStreamReader::EndElement ? 1 : 0;
        if (token != QXmlStreamReader::StartElement)
            continue;
        met.deepestLevel = std::max(met.deepestLevel, ++level);
        met.mostAttributes = std::max(met.mostAttributes, static_cast<int>(reader.attributes().size()));
        for (const QXmlStreamNamespaceDeclaration& declaration : reader.namespaceDeclarations())
            met.prefixes += declaration.prefix().isEmpty() ? 0 : 1;
    }
    met.wellFormed = !reader.hasError();
    return met;
}
