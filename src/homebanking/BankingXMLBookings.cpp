// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstddef>

#include <QtXml/QDomElement>

#include "dmwrite/NodeAccess.h"
#include "framework/AssertTypeSizes.h"
#include "homebanking/AccountFields.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HostAccess.h"
#include "homebanking/XmlNames.h"

namespace {

struct Field {
    Import::E_HBColumnIndex column;
    const char** tag; ///< the variable, so that a host's own text counts
};

// In the order of writing, up to the first refusal: the value date comes before
// the booking date, and a host may find the beginning of a booking.
constexpr std::array<Field, 10> kFields = {{
    {Import::eHBBuchungsID, &g_tagID},
    {Import::eHBValutaDatum, &g_tagValuta},
    {Import::eHBBuchungsDatum, &g_tagDatum},
    {Import::eHBGVCode, &g_tagGvcode},
    {Import::eHBBetrag, &g_tagBetrag},
    {Import::eHBVerwendungszweck, &g_tagVerwendungszweck},
    {Import::eHBSteuerrelevant, &g_tagSteuerrelevant},
    {Import::eHBEmpfaenger, &g_tagEmpfaenger},
    {Import::eHBNotiz, &g_tagNotiz},
    {Import::eHBKategorie, &g_tagKategorie},
}};

/// The elements of a booking that fill its fields, in the order of `kFields`:
/// of several with one name the first, null where there is none. Found in one
/// walk; asking for each name took as many walks as there are fields.
using FieldElements = std::array<QDomElement, kFields.size()>;

FieldElements findFieldElements(const QDomNode& buchung) {
    std::array<QLatin1String, kFields.size()> tags;
    std::transform(kFields.begin(), kFields.end(), tags.begin(),
                   [](const Field& field) { return QLatin1String(*field.tag); });
    FieldElements found;
    for (QDomElement child = buchung.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString name = child.tagName();
        for (std::size_t i = 0; i < tags.size(); ++i) {
            // A field that a host gave no name takes the first element, whatever it is called.
            if (found[i].isNull() && (tags[i].size() == 0 || name == tags[i]))
                found[i] = child;
        }
    }
    return found;
}

} // namespace

bool BankingXML::importBuchnungen(const QDomElement& list) {
    m_count = 0;
    m_lastBookingId = QLatin1String("");
    if (!list.hasChildNodes())
        return true;
    const QString blz = list.attribute(QString::fromLatin1(g_AttBLZ));
    const QString ktonr = list.attribute(QString::fromLatin1(g_AttKtoNr));
    Node* account = getAccount(blz, ktonr);
    if (account == nullptr) {
        m_errorMsg = "Unbekanntes Konto.";
        return false;
    }
    if (blz.isEmpty() || ktonr.isEmpty()) // only now: an account without a number is known, yet takes no bookings
        return false;
    const QString bookingTag = QString::fromLatin1(g_tagBuchung);
    for (QDomNode buchung = list.firstChild(); !buchung.isNull(); buchung = buchung.nextSibling()) {
        if (buchung.nodeName() != bookingTag)
            return false;
        if (!importBuchnung(buchung, account))
            return false;
        ++m_count;
    }
    writeImportAccountInfo(account);
    return true;
}

bool BankingXML::importBuchnung(const QDomNode& buchung, Node* account) {
    m_lastBookingId = getSafeChildValue(buchung, g_tagID); // kept even when the booking fails
    Node* row = createNewDataSet(account);
    if (row == nullptr)
        return false;
    const FieldElements elements = findFieldElements(buchung);
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        if (!importValue(row, kFields[i].column, elements[i].text()))
            return false;
    }
    return setUniqueID(row);
}

bool BankingXML::importValue(Node* row, Import::E_HBColumnIndex column, QString text) {
    if (text.isEmpty())
        return true;
    const char* name = getColumnNameForHBIndex(column);
    if (name == nullptr)
        return false;
    return NodeAccess::assignField(row, name, convertStringToDataType(column, text.toLatin1().constData()));
}

Node* BankingXML::createNewDataSet(Node* account) const {
    Node* table = account != nullptr ? account->getNode(NDX(AccountFields::kBookings)) : nullptr;
    return HostAccess::appendRow(dynamic_cast<NodeTable*>(table));
}
