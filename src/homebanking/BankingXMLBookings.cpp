// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
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
constexpr Field kFields[] = {
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
};

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
    const QDomNodeList children = list.childNodes();
    for (int i = 0; i < children.count(); ++i) {
        const QDomNode buchung = children.item(i);
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
    for (const Field& field : kFields) {
        if (!importValue(row, field.column, getSafeChildValue(buchung, *field.tag)))
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
