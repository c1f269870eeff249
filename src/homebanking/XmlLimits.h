// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>

class XmlTextScanner;

/// What a tree must not be built from. Is told what a reader of the document
/// meets, entities expanded; a reader stops once an operation returns false.
class XmlLimits {
public:
    static constexpr int kDeepestLevel = 1000;
    static constexpr int kMostAttributes = 1000;
    static constexpr int kMostPrefixes = 16;
    static constexpr int kMostEntities = 1000;
    static constexpr std::size_t kMostGroups = 1000;

    /// `scanner` has seen the whole document.
    explicit XmlLimits(const XmlTextScanner& scanner);

    /// Whether the elements of a document stay within the limits for sure, unless entities hold some.
    static bool areKept(const XmlTextScanner& scanner);

    enum class Fault { none, tooDeep, tooManyAttributes, tooManyPrefixes, entities };
    Fault fault() const { return m_fault; }
    /// Whether what follows the document type may go beyond a limit.
    bool readOn() const { return m_readOn; }

    bool declarePrefix(const QString& prefix);
    bool enterElement(std::size_t attributes);
    void leaveElement() { --m_level; }
    /// An internal general entity; in the order of the document.
    bool declareEntity(const QString& name, const QString& value);
    /// Takes note of the fault; false.
    bool refuse(Fault fault);

private:
    std::size_t expandedSize(const QString& value);

    std::size_t m_references;     ///< how often the document refers to entities, at most
    std::size_t m_expansionLimit; ///< UTF-16 units that all of them together may stand for
    bool m_readOn;
    Fault m_fault = Fault::none;
    int m_level = 0;
    QSet<QString> m_prefixes;
    QHash<QString, std::size_t> m_entitySizes; ///< entities expanded
    QSet<QString> m_awaited;                   ///< referred to before any declaration
};
