// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlLimits.h"

#include <algorithm>

#include "framework/AssertTypeSizes.h"
#include "homebanking/XmlTextScanner.h"

namespace {

/// What entities may add to any document, in UTF-16 units; a longer one may double.
constexpr std::size_t kFreeExpansion = std::size_t{256} * 1024;

} // namespace

XmlLimits::XmlLimits(const XmlTextScanner& scanner)
    : m_references(scanner.references()), m_expansionLimit(std::max(scanner.length(), kFreeExpansion)),
      m_readOn(!areKept(scanner)) {}

bool XmlLimits::areKept(const XmlTextScanner& scanner) {
    return scanner.deepestLevel() <= kDeepestLevel && scanner.mostAttributes() <= kMostAttributes &&
           scanner.prefixes() < kMostPrefixes && // one more has no prefix, and no colon, but may come on every level
           // Each of them may be a namespace in force on every level below.
           scanner.deepestLevel() * scanner.mostAttributes() <= kMostAttributes;
}

bool XmlLimits::declarePrefix(const QString& prefix) {
    // The readers look through all that are in force for every element, or copy them all at every declaration.
    m_prefixes.insert(prefix);
    return m_prefixes.size() <= kMostPrefixes || refuse(Fault::tooManyPrefixes);
}

bool XmlLimits::enterElement(std::size_t attributes) {
    if (++m_level > kDeepestLevel)
        return refuse(Fault::tooDeep);
    // Each attribute is compared with all others of its element when the tree is built.
    return attributes <= kMostAttributes || refuse(Fault::tooManyAttributes);
}

bool XmlLimits::declareEntity(const QString& name, const QString& value) {
    // Of several declarations of a name the first one counts.
    if (m_entitySizes.contains(name))
        return true;
    if (m_entitySizes.size() == kMostEntities)
        return refuse(Fault::entities);
    const std::size_t size = expandedSize(value);
    if (m_awaited.contains(name) || (size != 0 && m_references > m_expansionLimit / size))
        return refuse(Fault::entities);
    m_entitySizes.insert(name, size);
    m_readOn = m_readOn || value.contains(QLatin1Char('<'));
    return true;
}

bool XmlLimits::refuse(Fault fault) {
    m_fault = fault;
    return false;
}

std::size_t XmlLimits::expandedSize(const QString& value) {
    auto size = static_cast<std::size_t>(value.size());
    for (auto at = value.indexOf(QLatin1Char('&')); at >= 0;) {
        // No further than the next one: a value may hold thousands without an end.
        const auto next = value.indexOf(QLatin1Char('&'), at + 1);
        const QString part = value.mid(at + 1, next < 0 ? -1 : next - at - 1);
        const QString name = part.left(part.indexOf(QLatin1Char(';')));
        at = next;
        const auto known = m_entitySizes.constFind(name);
        if (known == m_entitySizes.constEnd())
            m_awaited.insert(name); // predefined, never declared, or of a size not known yet
        else
            size += *known;
    }
    return size;
}
