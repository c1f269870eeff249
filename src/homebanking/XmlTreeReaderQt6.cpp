// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlTreeReader.h"

#include <vector>

#include <QtCore/QStringDecoder>
#include <QtCore/QXmlStreamReader>
#include <QtXml/QDomDocument>

#include "framework/AssertTypeSizes.h"
#include "homebanking/XmlLimits.h"
#include "homebanking/XmlTextScanner.h"

namespace {

using Fault = XmlLimits::Fault;

/// The reader refuses bytes that are wrong in the encoding, and encodings that it does not know. Qt 5 reads the former
/// as a replacement character and takes the latter for UTF-8, and so do we: the reader gets characters.
QString decode(const QByteArray& bytes) {
    constexpr qsizetype kDeclaration = 4096; // an XML declaration is not longer
    QXmlStreamReader reader(bytes.left(kDeclaration));
    reader.readNext();
    QStringDecoder decoder;
    if (!reader.documentEncoding().isEmpty())
        decoder = QStringDecoder(reader.documentEncoding().toLatin1().constData());
    if (!decoder.isValid())
        decoder = QStringDecoder(QStringDecoder::encodingForData(bytes, u'<').value_or(QStringDecoder::Utf8));
    return decoder(bytes);
}

/// UTF-16 units that one entity may stand for, whatever the document's length. The reader's own limit is too low for a
/// text, and none at all would let an entity hold a document type of its own with whatever that may stand for.
constexpr int kLongestEntity = 256 * 1024;

/// The reader refuses a document for an entity that nobody declared. Here it becomes a node that is neither element nor
/// text, as with Qt 5.
class UndeclaredEntities : public QXmlStreamEntityResolver {
public:
    QString resolveUndeclaredEntity(const QString& /*name*/) override { return QLatin1String("<?entity?>"); }
};

/// The reader over decoded text, set as for building trees.
class TreeReader : public QXmlStreamReader {
public:
    explicit TreeReader(const QString& text) : QXmlStreamReader(text) {
        setEntityResolver(&m_undeclared);
        setEntityExpansionLimit(kLongestEntity);
    }

private:
    UndeclaredEntities m_undeclared;
};

XmlTextScanner scanOf(QStringView text) {
    XmlTextScanner scanner;
    scanner.read(text.utf16(), text.utf16() + text.size());
    return scanner;
}

/// How much of `text` lies up to its end or up to a start tag with far too many attributes, which the reader
/// would compare with each other before anybody could stop it.
qsizetype readableLength(QStringView text) {
    constexpr qsizetype kPiece = 4096;
    XmlTextScanner scanner;
    qsizetype length = 0;
    while (length < text.size() && scanner.mostAttributes() <= XmlLimits::kMostAttributes) {
        const QStringView piece = text.mid(length, kPiece);
        scanner.read(piece.utf16(), piece.utf16() + piece.size());
        length += piece.size();
    }
    return length;
}

/// Tells the limits what the reader meets.
class LimitedReading {
public:
    LimitedReading(const QString& text, XmlLimits& limits) : m_reader(text), m_limits(limits) {}

    /// Reads on until there is nothing left or the limits ask for no more.
    void readAll() {
        while (!m_reader.atEnd() && readToken()) {
        }
    }
    /// Whether the text ended before its document did, and was all right up to there.
    bool endedEarly() const { return m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError; }

private:
    bool readToken() {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::DTD:
            return readDocumentType();
        case QXmlStreamReader::StartElement:
            return declarePrefixes() && m_limits.enterElement(static_cast<std::size_t>(m_reader.attributes().size()));
        case QXmlStreamReader::EndElement:
            m_inForce -= m_declared.back();
            m_declared.pop_back();
            m_limits.leaveElement();
            return true;
        default:
            return true;
        }
    }

    bool readDocumentType() {
        if (m_hasDocumentType) // no tree has two
            return false;
        m_hasDocumentType = true;
        for (const QXmlStreamEntityDeclaration& entity : m_reader.entityDeclarations()) {
            if (scanOf(entity.value()).mostAttributes() > XmlLimits::kMostAttributes)
                return m_limits.refuse(Fault::tooManyAttributes);
            const bool external = !entity.systemId().isNull();
            if (!external && !m_limits.declareEntity(entity.name().toString(), entity.value().toString()))
                return false;
        }
        return m_limits.readOn();
    }

    bool declarePrefixes() {
        const QXmlStreamNamespaceDeclarations declarations = m_reader.namespaceDeclarations();
        for (const QXmlStreamNamespaceDeclaration& declaration : declarations) {
            if (!m_limits.declarePrefix(declaration.prefix().toString()))
                return false;
        }
        m_declared.push_back(declarations.size());
        m_inForce += declarations.size();
        // Looked through for each element, even where one prefix is declared again and again.
        return m_inForce <= XmlLimits::kMostAttributes || m_limits.refuse(Fault::tooManyPrefixes);
    }

    TreeReader m_reader;
    XmlLimits& m_limits;
    bool m_hasDocumentType = false;
    std::vector<qsizetype> m_declared; ///< namespace declarations of each open element
    qsizetype m_inForce = 0;           ///< of all of them
};

} // namespace

namespace XmlTreeReader {

void scan(const QByteArray& bytes, XmlTextScanner& scanner) { scanner = scanOf(decode(bytes)); }

void read(const QByteArray& bytes, const XmlTextScanner& scanner, XmlLimits& limits) {
    // This reader adds declared attributes to every element, which Qt 5 does not, and compares all of them with each
    // other. Parameter entities can split the text at any place, so that nothing is known of it.
    if (scanner.addsToTheDocument()) {
        limits.refuse(Fault::entities);
        return;
    }
    QString text = decode(bytes);
    const qsizetype length = readableLength(text);
    const bool tooManyAttributes = length < text.size();
    text.truncate(length);
    LimitedReading reading(text, limits);
    reading.readAll();
    if (tooManyAttributes && limits.fault() == Fault::none && reading.endedEarly())
        limits.refuse(Fault::tooManyAttributes);
}

bool buildTree(QDomDocument& document, const QByteArray& bytes, QString& message) {
    TreeReader reader(decode(bytes));
    return document.setContent(&reader, true, &message);
}

} // namespace XmlTreeReader
