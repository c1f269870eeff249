// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "framework/ImportModuleApi.h"

class BankingXML;
class XmlImportData;

/// The front door of the home-banking exchange: brings the host's list of bank
/// accounts up to date and adds bookings to them. Any number of imports, one
/// after the other, on one thread.
///
/// The day/month order that dates have taught an earlier import of this process
/// holds here, too, as does the century window of the last file import: nothing
/// resets them on this path. A host that wants every document read on its own
/// sets `SmartDate::sm_order` to 0 and calls `SmartDate::setupCenturyStart`
/// before.
class IMPORT_MODULE_API ImportHomeBankingData {
public:
    ImportHomeBankingData();
    virtual ~ImportHomeBankingData();
    ImportHomeBankingData(const ImportHomeBankingData&) = delete;
    ImportHomeBankingData& operator=(const ImportHomeBankingData&) = delete;

    /// Reads an account list: accounts are found or made, named and marked as
    /// present, all others marked as absent. False when the document is not
    /// readable or names no account; the marks may have changed by then.
    bool updateAccountList(const XmlImportData& data);

    /// Reads a booking list and appends its bookings to the account it names.
    /// False at the first booking that cannot be stored; what was written
    /// before stays, so undoing it is the host's business. Repeats are not
    /// recognised.
    bool importAccountingEntries(const XmlImportData& data);

    /// German, Latin-1. Only a failure that has a text changes it: ask after a
    /// failure, and do not take it for one. Valid until it changes or this
    /// object dies.
    const char* getErrorMsg() const;

private:
    std::unique_ptr<BankingXML> m_bankingXml;
};
