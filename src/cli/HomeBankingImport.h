// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cli/Console.h"
#include "cli/HomeBankingDocument.h"
#include "cli/HomeBankingReport.h"
#include "cli/HomeBankingRows.h"
#include "cli/HomeBankingWatch.h"
#include "cli/ImportedRecords.h"
#include "cli/StoreAtPath.h"
#include "cli/XmlDocumentFile.h"
#include "cli/XmlList.h"
#include "cli/XmlText.h"
#include "datamodel/DataManager.h"

/// What the person wants of it.
struct HomeBankingWishes {
    bool keepPartial = false;
    bool again = false;   ///< also a list that was imported before
    bool newOnly = false; ///< leaves out bookings that the store has
    bool toldOf = false;  ///< a page tells of the bookings
};

/// The import of one home-banking document into a store: one transaction, which
/// a failure takes back unless the person wants to keep what was written before
/// it.
class HomeBankingImport {
public:
    /// Both must outlive the object.
    HomeBankingImport(XmlDocumentFile& file, const HomeBankingDocument& document, HomeBankingWishes wishes);

    /// Throws StoreError; `report` then says how far it came.
    void run(StoreAtPath& store, const Console& console);
    const HomeBankingReport& report() const { return m_report; }
    /// The bookings that it made, kept or not; nothing unless the person wants them told.
    const ImportedRecords& records() const { return m_records; }
    const XmlText& text() const { return m_text; }
    const XmlList& list() const { return m_list; }

private:
    void askForWords();
    bool wasImportedBefore(Store& store);
    void importInto(Store& store, const Console& console);
    bool call(const XmlImportData& data);
    void judgeAccounts(DataManager& model);
    void judgeBookings(const HomeBankingWatch& watch, DataManager& model, Store& store);
    void leaveOutKnown(HomeBankingRows::Bookings& bookings, Store& store);
    void countRecords(std::size_t imported);
    void fail(Message message);

    XmlDocumentFile& m_file;
    const HomeBankingDocument& m_document;
    HomeBankingWishes m_wishes;
    std::string m_checksum;
    XmlText m_text;
    XmlList m_list;
    HomeBankingReport m_report;
    ImportedRecords m_records;
    bool m_failed = false; ///< the document as a whole
};
