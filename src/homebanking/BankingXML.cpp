// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/BankingXML.h"

#include <limits>

#include <QtCore/QFile>
#include <QtXml/QDomDocument>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "homebanking/HostAccess.h"
#include "homebanking/XmlGuard.h"
#include "homebanking/XmlImportData.h"
#include "homebanking/XmlNames.h"
#include "homebanking/XmlTreeReader.h"

namespace {

constexpr int kVersion = 1;

constexpr const char* kCannotOpen = "Die Importdatei konnte nicht geöffnet werden."_latin1;
constexpr const char* kNoData = "Keine Daten vorhanden";
constexpr const char* kNotXml = "Die XML-Datei ist ungültig."_latin1;
constexpr const char* kNoVersion = "Die XML-Datei hat eine Keine Versionsnummer."; // sic; hosts show it so
constexpr const char* kUnknownVersion = "Die XML-Datei hat eine unbekannte Versionsnummer.";
constexpr const char* kNoAccounts = "Keine Konten vorhanden.";

constexpr const char* kTooLarge = "Die Daten sind größer als 2 GB. Bitte auf mehrere Dateien verteilen."_latin1;

/// What one QByteArray can hold beside its own header.
constexpr int kMostBytes = std::numeric_limits<int>::max() - 64;

} // namespace

BankingXML::BankingXML() = default;
BankingXML::~BankingXML() = default;

bool BankingXML::updateAccountList(const XmlImportData& data) { return openFileAndParseXml(data, AccountList); }

bool BankingXML::importAccountingEntries(const XmlImportData& data) {
    return openFileAndParseXml(data, AccountingEntries);
}

bool BankingXML::openFileAndParseXml(const XmlImportData& data, XmlDataType type) {
    m_targetNode = data.getImportTargetNode();
    try {
        QByteArray bytes;
        if (!readDocument(data, bytes))
            return false;
        switch (type) {
        case AccountList:
            return parseAccountListXmlFile(bytes);
        case AccountingEntries:
            return parseAccountingEntriesXmlFile(bytes);
        }
        return false;
    } catch (...) { // no exception crosses the library's boundary
        return false;
    }
}

bool BankingXML::readDocument(const XmlImportData& data, QByteArray& bytes) {
    const std::string fileName = data.getXmlFileName();
    if (!fileName.empty()) {
        QFile file(QString::fromLatin1(fileName.c_str()));
        if (!file.open(QIODevice::ReadOnly)) {
            m_errorMsg = kCannotOpen;
            return false;
        }
        if (file.size() > kMostBytes)
            return refuseDocument(kTooLarge);
        bytes = file.readAll();
        return true;
    }
    if (data.getBuffer() == nullptr) {
        m_errorMsg = kNoData;
        return false;
    }
    if (data.getBufferSize() > static_cast<unsigned long>(kMostBytes))
        return refuseDocument(kTooLarge);
    bytes.append(data.getBuffer(), static_cast<int>(data.getBufferSize()));
    return true;
}

bool BankingXML::refuseDocument(const char* reason) {
    m_errorMsg = kNotXml;
    m_errorMsg += "\r\n";
    m_errorMsg += reason;
    return false;
}

bool BankingXML::parseAccountListXmlFile(QByteArray& bytes) {
    QDomDocument document;
    QDomElement list;
    if (!initXmldocument(document, bytes) || !getRootElement(document, kVersion, g_tagKontoliste, list))
        return false;
    importKonten(list); // whatever ended the list, it counts if it named an account
    if (m_count == 0)
        m_errorMsg = kNoAccounts;
    return m_count != 0;
}

bool BankingXML::parseAccountingEntriesXmlFile(QByteArray& bytes) {
    QDomDocument document;
    QDomElement list;
    return initXmldocument(document, bytes) && getRootElement(document, kVersion, g_tagBuchungsliste, list) &&
           importBuchnungen(list);
}

bool BankingXML::initXmldocument(QDomDocument& doc, const QByteArray& bytes) {
    if (const char* fault = XmlGuard::findFault(bytes))
        return refuseDocument(fault);
    QString message;
    if (XmlTreeReader::buildTree(doc, bytes, message))
        return true;
    return refuseDocument(HostAccess::text(message).c_str());
}

bool BankingXML::getRootElement(QDomDocument& doc, int version, const char* tag, QDomElement& out) {
    out = doc.firstChildElement();
    const QString text = out.attribute(QString::fromLatin1(g_AttVersion));
    const auto point = text.indexOf(QLatin1Char('.'));
    if (point < 0) {
        m_errorMsg = kNoVersion;
        return false;
    }
    const int majorNumber = text.left(point).toInt();
    const QString name = out.localName();
    // A wrong name is reported as an unknown version, too; hosts know that text.
    if (majorNumber != version || name != QLatin1String(g_tagHomeBanking)) {
        m_errorMsg = kUnknownVersion;
        return false;
    }
    out = out.firstChildElement(QString::fromLatin1(tag));
    return !out.isNull();
}

QString BankingXML::getSafeChildValue(QDomNode node, const char* tag) const {
    return node.firstChildElement(QString::fromLatin1(tag)).text();
}
