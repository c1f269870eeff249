// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtXml/QXmlDefaultHandler>

// Qt 5.15 deprecates this reader, yet still builds its trees with it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

/// Listens to the very reader that tree builders use, entities expanded, and
/// stops it at what a tree must not be built from.
class XmlLimitHandler : public QXmlDefaultHandler {
public:
    static constexpr int kDeepestLevel = 1000;
    static constexpr int kMostAttributes = 1000;
    static constexpr int kMostPrefixes = 16;
    static constexpr int kMostEntities = 1000;
    static constexpr std::size_t kMostGroups = 1000;

    /// `references`: how often the document refers to entities, at most;
    /// `expansionLimit`: UTF-16 units that all of them together may stand for.
    /// Reads on behind the DTD if `inFull`, or if entities may hold elements.
    XmlLimitHandler(std::size_t references, std::size_t expansionLimit, bool inFull);

    enum class Fault { none, tooDeep, tooManyAttributes, tooManyPrefixes, entities };
    Fault fault() const { return m_fault; }

    bool startPrefixMapping(const QString& prefix, const QString& uri) override;
    bool startElement(const QString& uri, const QString& localName, const QString& name,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& uri, const QString& localName, const QString& name) override;
    bool internalEntityDecl(const QString& name, const QString& value) override;
    bool endDTD() override;

private:
    bool refuse(Fault fault);
    std::size_t expandedSize(const QString& value);

    std::size_t m_references;
    std::size_t m_expansionLimit;
    bool m_readOn;
    Fault m_fault = Fault::none;
    int m_level = 0;
    QSet<QString> m_prefixes;
    QHash<QString, std::size_t> m_entitySizes; ///< entities expanded
    QSet<QString> m_awaited;                   ///< referred to before any declaration
};

#pragma GCC diagnostic pop
