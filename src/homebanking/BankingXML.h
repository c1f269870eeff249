// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include "dmwrite/E_HBColumnIndex.h"
#include "dmwrite/ImportIntoDMHelper.h"
#include "framework/ImportModuleApi.h"

class AccountIndex;
class NodeTable;
class QByteArray;
class QDomDocument;
class QDomElement;
class QDomNode;
class XmlImportData;

/// Reads the two home-banking documents and writes accounts and bookings into
/// the host's tree. Texts go there as Latin-1; a character outside it becomes
/// "?", and a text ends at its first zero byte.
///
/// Operations fail by a false or null result; no exception leaves an import.
/// The error text is never cleared, and a failure without a text of its own
/// leaves the one before.
class IMPORT_MODULE_API BankingXML : public ImportIntoDMHelper {
public:
    /// Any other number is no document: parsing it fails without a text.
    enum XmlDataType : int { AccountList = 0, AccountingEntries = 1 };

    BankingXML();
    ~BankingXML() override;

    bool updateAccountList(const XmlImportData& data);
    bool importAccountingEntries(const XmlImportData& data);

    // Reading.

    bool openFileAndParseXml(const XmlImportData& data, XmlDataType type);
    bool parseAccountListXmlFile(QByteArray& bytes);
    bool parseAccountingEntriesXmlFile(QByteArray& bytes);
    /// Builds the tree. A document that would overflow the stack, or blow up
    /// memory or time, is refused like one that is not well-formed.
    bool initXmldocument(QDomDocument& doc, const QByteArray& bytes);
    /// Checks the version (its major number alone) and then the name of the
    /// root; `out` becomes its first child element named `tag`.
    bool getRootElement(QDomDocument& doc, int version, const char* tag, QDomElement& out);
    /// The text of the first child element named `tag`; empty without one.
    QString getSafeChildValue(QDomNode node, const char* tag) const;

    // Accounts.

    /// Stops with false at the first child that is no account; those before it
    /// have been updated.
    bool importKonten(const QDomElement& list);
    /// False when the account is new and no row can be made for it.
    bool importKonto(const QDomNode& konto);
    /// The target's table "HomeBankingImport", or null.
    NodeTable* getAccountsBaseNode() const;
    /// The first row with that bank code and account number, compared byte for
    /// byte, or null.
    Node* getAccount(QString blz, QString ktonr) const;
    Node* createNewAccount(QString blz, QString ktonr) const;
    void setExistsInHBToFalse();
    /// Writes today's date (UTC), the last booking's ID (unless empty) and the
    /// number of bookings into the account.
    bool writeImportAccountInfo(Node* account);

    // Bookings.

    /// Stops with false at the first child that is no booking or cannot be
    /// stored; those before it stay.
    bool importBuchnungen(const QDomElement& list);
    /// A booking that fails stays in the table, filled up to the failing column.
    bool importBuchnung(const QDomNode& buchung, Node* account);
    /// An empty text writes nothing and is no failure.
    bool importValue(Node* row, Import::E_HBColumnIndex column, QString text);
    /// Appends an empty row to the account's "DataSets"; null when it cannot.
    Node* createNewDataSet(Node* account) const;

private:
    bool readDocument(const XmlImportData& data, QByteArray& bytes);
    bool refuseDocument(const char* reason);
    bool importKonto(const QDomNode& konto, AccountIndex& accounts);

    int m_count = 0; ///< accounts or bookings of the current run
    QString m_lastBookingId;
};
