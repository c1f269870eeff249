// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlLimitHandler.h"

#include <iterator>

#include <QtCore/QStringRef>
#include <QtCore/QVector>

#include "framework/AssertTypeSizes.h"

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // see the header

XmlLimitHandler::XmlLimitHandler(std::size_t references, std::size_t expansionLimit, bool inFull)
    : m_references(references), m_expansionLimit(expansionLimit), m_readOn(inFull) {}

bool XmlLimitHandler::startPrefixMapping(const QString& prefix, const QString& /*uri*/) {
    // At the end of every element the reader compares all that are in force with
    // each other, and at every declaration it copies them all.
    m_prefixes.insert(prefix);
    return m_prefixes.size() <= kMostPrefixes || refuse(Fault::tooManyPrefixes);
}

bool XmlLimitHandler::startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/,
                                   const QXmlAttributes& attributes) {
    if (++m_level > kDeepestLevel)
        return refuse(Fault::tooDeep);
    // Each attribute is compared with all others of its element when the tree is built.
    return attributes.length() <= kMostAttributes || refuse(Fault::tooManyAttributes);
}

bool XmlLimitHandler::endElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/) {
    --m_level;
    return true;
}

bool XmlLimitHandler::internalEntityDecl(const QString& name, const QString& value) {
    // The reader compares each declaration with all before it, and its own
    // limit on what entities expand to leaves out the last one. Parameter
    // entities can split the text at any place, so that nothing is known of it.
    const bool parameter = name.startsWith(QLatin1Char('%'));
    if (parameter || m_entitySizes.size() == kMostEntities)
        return refuse(Fault::entities);
    const std::size_t size = expandedSize(value);
    if (m_awaited.contains(name) || (size != 0 && m_references > m_expansionLimit / size))
        return refuse(Fault::entities);
    m_entitySizes.insert(name, size);
    m_readOn = m_readOn || value.contains(QLatin1Char('<'));
    return true;
}

bool XmlLimitHandler::endDTD() { return m_readOn; }

bool XmlLimitHandler::refuse(Fault fault) {
    m_fault = fault;
    return false;
}

std::size_t XmlLimitHandler::expandedSize(const QString& value) {
    auto size = static_cast<std::size_t>(value.size());
    const QVector<QStringRef> parts = value.splitRef(QLatin1Char('&'));
    for (const auto* part = std::next(parts.begin()); part != parts.end(); ++part) {
        const QString name = part->left(part->indexOf(QLatin1Char(';'))).toString();
        const auto known = m_entitySizes.constFind(name);
        if (known == m_entitySizes.constEnd())
            m_awaited.insert(name); // predefined, never declared, or of a size not known yet
        else
            size += *known;
    }
    return size;
}
