// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <map>
#include <string>

#include "dmwrite/SmartDate.h"
#include "framework/ImportFileBase.h"
#include "framework/ImportModuleApi.h"

/// Quicken Interchange Format (see docs/formats/qif.md).
///
/// Works in two phases: reading, it only collects records; once the last line
/// is read it writes them, in file order. A line that is rejected therefore
/// leaves nothing of the file in the data model.
///
/// An object serves one import. It can run again, but then reads dates without
/// the QIF syntax, since writing the records switches that off, and goes on
/// with the record that the first run left unfinished.
class IMPORT_MODULE_API ImportModuleQIF : public ImportFileBase {
public:
    /// What the records of a section are. 10 and 11 are never used.
    enum E_AccountType : int {
        Bank = 0,
        Cash = 1,
        CreditCard = 2,
        Investment = 3,
        OtherAsset = 4,
        OtherLiability = 5,
        Invoice = 6,
        Tax = 7,
        Bill = 8,
        Category = 9, ///< a list of categories, whose fields have meanings of their own
        Ignored = 12, ///< records are skipped
        NoSection = 13
    };

    struct AccountTypeAndName {
        E_AccountType type;
        const char* name; ///< the section's label, Latin-1; a literal
    };

    /// One record. The texts are Latin-1 and stand as the file has them.
    struct IMPORT_MODULE_API ImportDataSet {
        /// Also switches the QIF date syntax on, for every SmartDate. Copies
        /// construct no date and so leave the syntax as it is.
        ImportDataSet();

        /// Empties everything but the section's label.
        void clearRecord();
        /// Adds a term to the budget: to the sum, to the amount and to the
        /// text that lists the terms.
        void addBudget(double amount);
        /// Makes a memo of the security's fields where there is a security and
        /// no memo.
        void describeSecurity();

        std::string m_sectionLabel;
        std::string m_memo;
        SmartDate m_date;
        std::string m_amount;
        std::string m_payee;
        std::string m_number; ///< check number; of a category, the terms of its budget
        std::string m_category;
        std::string m_quantity;
        std::string m_price;
        std::string m_commission;
        std::string m_security;
        double m_budgetSum = 0.0; ///< of a category's budget lines, in currency units
    };

    static const char* const m_MyFileExtension;

    ImportModuleQIF();
    ~ImportModuleQIF() override;

    const char* getFileExtension() const override;
    /// 0 where a line was rejected. Otherwise success, even where a value was
    /// refused while writing: the records from there on are missing then.
    int importFile(const ImportInputParams& params) override;
    bool processLine(char* line, Node* target) override;
    int getInputFileColNo(Import::E_ColumnIndex column) override;
    /// A text for the user: no table is proposed.
    virtual const char* getDefaultTargetNodeName() const;
    /// The writing phase; false at the first value that is refused.
    virtual bool onImportAllDataSets(const ImportInputParams& params);

    /// The amount of a QIF text, in currency units: commas are removed from
    /// `text`, then the number at its start counts, 0 where there is none.
    /// Under every locale "." is the decimal mark. Not used by the import,
    /// whose amounts go through `scanCurrency`.
    static double qifCurrencytoDouble(std::string& text);

protected:
    /// Enters the known headers.
    void setup();
    /// Enters a header line, or replaces what is known of it.
    void addHeaderInfo(const char* header, const char* name, E_AccountType type);
    /// Whether the line is a known header; if so, its section begins.
    bool parseHeader(const char* line);
    /// Reads one line of a record. False for a date that is none and for the
    /// end of a record that is not valid; an unknown line is reported and
    /// counts as read. (The name is misspelt in hosts, too.)
    bool parseAcountItem(const char* line);
    /// Completes a finished record and collects a copy of it. A category
    /// without a budget is valid and not collected.
    bool processDataSet(ImportDataSet& dataSet);

    std::map<std::string, AccountTypeAndName> m_headerMap;
    std::list<ImportDataSet> m_dataSets; ///< the finished records, in file order
    E_AccountType m_accountType = NoSection;
    ImportDataSet m_currentDataSet;
    bool m_atRecordStart = false; ///< the next line may be a header

private:
    enum class Verdict { refuse, skip, collect };

    /// What becomes of a finished record, which is completed where it is collected.
    Verdict complete(ImportDataSet& dataSet);
    bool parseDate(const char* text);
    bool endRecord();
    void reportUnknownEntry(const char* line);
    bool writeHeaderRow();
    bool writeDataSet(const ImportDataSet& dataSet);
};
