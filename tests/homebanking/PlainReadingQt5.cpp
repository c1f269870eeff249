// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/PlainReading.h"

#include <algorithm>

#include <QtCore/QString>
#include <QtXml/QXmlDefaultHandler>
#include <QtXml/QXmlSimpleReader>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // the reader that trees are built with

namespace {

class Listener : public QXmlDefaultHandler {
public:
    PlainReading met;

    bool startPrefixMapping(const QString& prefix, const QString&) override {
        met.prefixes += prefix.isEmpty() ? 0 : 1;
        return true;
    }
    bool startElement(const QString&, const QString&, const QString&, const QXmlAttributes& attributes) override {
        met.deepestLevel = std::max(met.deepestLevel, ++m_level);
        met.mostAttributes = std::max(met.mostAttributes, attributes.length());
        return true;
    }
    bool endElement(const QString&, const QString&, const QString&) override {
        --m_level;
        return true;
    }

private:
    int m_level = 0;
};

} // namespace

PlainReading PlainReading::of(const std::u16string& document) {
    QXmlSimpleReader reader;
    Listener listener;
    reader.setContentHandler(&listener);
    QXmlInputSource source;
    source.setData(QString::fromStdU16String(document));
    listener.met.wellFormed = reader.parse(source);
    return listener.met;
}
