// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlTreeReader.h"

#include <QtCore/QBuffer>
#include <QtXml/QDomDocument>
#include <QtXml/QXmlDefaultHandler>
#include <QtXml/QXmlInputSource>
#include <QtXml/QXmlSimpleReader>

#include "framework/AssertTypeSizes.h"
#include "homebanking/XmlLimits.h"
#include "homebanking/XmlTextScanner.h"

// Qt 5.15 deprecates this reader, yet still builds its trees with it.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

/// Feeds `use` with a source of the document's characters, decoded piece by
/// piece as for the tree's own reader.
template <typename Use>
void withSource(const QByteArray& bytes, Use use) {
    QBuffer buffer;
    buffer.setData(bytes);
    QXmlInputSource source(&buffer);
    use(source);
}

/// Listens to the very reader that tree builders use, entities expanded.
class LimitHandler : public QXmlDefaultHandler {
public:
    explicit LimitHandler(XmlLimits& limits) : m_limits(limits) {}

    bool startPrefixMapping(const QString& prefix, const QString& /*uri*/) override {
        return m_limits.declarePrefix(prefix);
    }
    bool startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/,
                      const QXmlAttributes& attributes) override {
        return m_limits.enterElement(static_cast<std::size_t>(attributes.length()));
    }
    bool endElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/) override {
        m_limits.leaveElement();
        return true;
    }
    bool internalEntityDecl(const QString& name, const QString& value) override {
        // The reader compares each declaration with all before it, and its own limit on what entities expand to leaves
        // out the last one. Parameter entities can split the text at any place, so that nothing is known of it.
        if (name.startsWith(QLatin1Char('%')))
            return m_limits.refuse(XmlLimits::Fault::entities);
        return m_limits.declareEntity(name, value);
    }
    bool endDTD() override { return m_limits.readOn(); }

private:
    XmlLimits& m_limits;
};

} // namespace

namespace XmlTreeReader {

void scan(const QByteArray& bytes, XmlTextScanner& scanner) {
    withSource(bytes, [&scanner](QXmlInputSource& source) {
        for (QString piece = source.data(); !piece.isEmpty(); piece = source.data()) {
            const auto* text = reinterpret_cast<const char16_t*>(piece.utf16());
            scanner.read(text, text + piece.size());
            source.fetchData();
        }
    });
}

void read(const QByteArray& bytes, const XmlTextScanner& /*scanner*/, XmlLimits& limits) {
    LimitHandler handler(limits);
    withSource(bytes, [&handler](QXmlInputSource& source) {
        QXmlSimpleReader reader;
        reader.setContentHandler(&handler);
        reader.setDeclHandler(&handler);
        reader.setLexicalHandler(&handler);
        reader.parse(source); // its errors are found again, and reported, when the tree is built
    });
}

bool buildTree(QDomDocument& document, const QByteArray& bytes, QString& message) {
    return document.setContent(bytes, true, &message);
}

} // namespace XmlTreeReader
