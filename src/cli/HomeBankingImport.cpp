// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingImport.h"

#include <algorithm>
#include <utility>

#include "cli/BookingListBook.h"
#include "cli/FileChecksum.h"
#include "cli/FreshDates.h"
#include "cli/HomeBankingMessages.h"
#include "cli/HostText1252.h"
#include "cli/ModelTables.h"
#include "cli/NewOnly.h"
#include "cli/SafeText.h"
#include "cli/StoreComparison.h"
#include "cli/TrialModel.h"
#include "cli/XmlLines.h"
#include "datamodel/DataModel.h"
#include "datamodel/HostText.h"

HomeBankingImport::HomeBankingImport(XmlDocumentFile& file, const HomeBankingDocument& document,
                                     HomeBankingWishes wishes)
    : m_file(file), m_document(document), m_wishes(wishes), m_text(file.bytes()),
      m_list(m_text.view(), document.listTag, document.recordTag) {
    m_report.file = file.argument();
}

void HomeBankingImport::run(StoreAtPath& storeAtPath, const Console& console) {
    if (m_file.problem() || m_file.isTooLarge()) {
        askForWords();
        return;
    }
    Store& store = storeAtPath.forWriting();
    m_checksum = FileChecksum::ofBytes(m_file.bytes());
    if (m_document.isAccountList || m_wishes.again || m_wishes.newOnly || !wasImportedBefore(store))
        importInto(store, console);
    m_report.lines = XmlLines::count(m_text.view(), m_report.records.found > 0 ? m_list.records() : std::nullopt);
    const bool keeps =
        (!m_failed && !m_report.broughtNothingNew()) || (m_wishes.keepPartial && m_report.records.imported > 0);
    if (keeps) {
        store.commit();
        m_report.committed = true;
    } else {
        store.rollback();
        m_report.accounts = 0;
    }
}

/// A file that was not read harms nobody; the library has a text for it.
void HomeBankingImport::askForWords() {
    if (const std::optional<std::string> name = m_file.nameForTheLibrary()) {
        const DataManager scratch;
        XmlImportData data;
        data.setXmlFileName(name->c_str());
        data.setImportTargetNode(scratch.root());
        call(data);
    }
    fail(m_file.problem() ? *m_file.problem() : HomeBankingMessages::ofText(m_report.errorText));
}

/// An account list only says what accounts there are; of bookings a second time would double them.
bool HomeBankingImport::wasImportedBefore(Store& store) {
    const std::optional<BookingListBook::List> before = BookingListBook::find(store, m_checksum);
    if (before)
        fail(Message::of(Problem::listImportedBefore, {before->day, before->fileName}));
    return before.has_value();
}

void HomeBankingImport::importInto(Store& store, const Console& console) {
    std::optional<TrialModel> trial;
    if (m_wishes.newOnly)
        trial.emplace(store.model());
    DataManager& model = trial ? trial->model() : store.model();
    Progress progress(console.showsProgress(), SafeText::printable(m_report.file), m_list.recordCount());
    const HomeBankingWatch watch(model.model(), progress);
    forgetEarlierDates(model.root());
    XmlImportData data;
    data.setXmlContent(m_file.bytes().data(), m_file.bytes().size());
    data.setImportTargetNode(model.root());
    m_report.result = call(data);
    m_failed = !m_report.result;
    if (!m_report.result && HomeBankingMessages::isOfDocument(m_report.errorText))
        fail(HomeBankingMessages::ofText(m_report.errorText));
    else if (m_document.isAccountList)
        judgeAccounts(model);
    else
        judgeBookings(watch, model, store);
    if (watch.refusedBookkeeping())
        fail(Message::of(Problem::bookkeepingRefused, {*watch.refusedBookkeeping()}));
    if (m_failed && m_report.messages.empty())
        fail(HomeBankingMessages::ofFailure(m_document, m_list, m_report.errorText));
    if (trial && !m_report.broughtNothingNew())
        trial->moveInto(store.model());
}

bool HomeBankingImport::call(const XmlImportData& data) {
    ImportHomeBankingData door;
    const bool result = (door.*m_document.import)(data);
    m_report.errorText = HostText::toUtf8(door.getErrorMsg());
    return result;
}

void HomeBankingImport::judgeAccounts(DataManager& model) {
    const bool stopped = m_list.stranger().has_value();
    const std::size_t read = stopped ? m_list.stranger()->recordsBefore : m_list.recordCount();
    const bool isFull = HomeBankingRows::accountsAreFull(model);
    std::size_t imported = 0;
    if (m_report.result) {
        m_report.accounts = HomeBankingRows::presentAccounts(model);
        imported = m_list.isOpaque() || isFull ? m_report.accounts : read;
    }
    countRecords(imported);
    if (isFull && imported < read)
        fail(Message::of(Problem::accountsFull, {std::to_string(read - imported)}));
    if (m_list.isCutShort())
        m_report.messages.push_back(HomeBankingMessages::listEnded(m_document, m_list, m_text));
}

void HomeBankingImport::judgeBookings(const HomeBankingWatch& watch, DataManager& model, Store& store) {
    HomeBankingRows::Bookings bookings(model, watch.table(), watch.rows());
    const std::size_t number = watch.rows(); // of the booking that the library made last
    const bool unfinished = m_failed && bookings.lastIsUnfinished();
    if (unfinished && watch.refusedField())
        fail(HomeBankingMessages::bookingRefused(m_list, m_text, number, bookings.lastId(), *watch.refusedField()));
    else if (m_failed && !unfinished && HomeBankingMessages::mayBeStranger(m_list, number, m_report.errorText))
        fail(HomeBankingMessages::listEnded(m_document, m_list, m_text));
    else if (m_failed && !unfinished && m_report.errorText.empty() && HomeBankingRows::anAccountIsFull(model))
        fail(HomeBankingMessages::accountFull(m_list, m_text, number + 1));
    if (unfinished)
        bookings.removeLast(); // it lacks what came behind the refused value
    if (m_wishes.newOnly)
        leaveOutKnown(bookings, store);
    m_report.undatedCount = bookings.undated();
    if (m_wishes.toldOf)
        m_records = ImportedRecords::ofBookings(bookings);
    countRecords(bookings.count());
    if (bookings.count() > 0)
        BookingListBook::keep(model, *bookings.account(),
                              {HostText1252::transliterated(m_report.file), m_checksum, bookings.count(),
                               m_report.records.known.value_or(0)});
}

void HomeBankingImport::leaveOutKnown(HomeBankingRows::Bookings& bookings, Store& store) {
    const std::vector<RecordNode*> rows = bookings.rows();
    if (rows.empty())
        return;
    RecordNode& account =
        *ModelTables::table(store.model().model().root(), "HomeBankingImport").row(bookings.accountRow());
    const std::size_t room = TableNode::kMaxRows - ModelTables::table(account, "DataSets").getNodeCount();
    const std::vector<std::size_t> lines = XmlLines::ofRecords(m_text.view(), m_list, rows.size());
    NewOnly chosen = NewOnly::of(rows, StoreComparison::ofBookings(store, account, rows), lines, room);
    bookings.remove(chosen.leftOut);
    m_report.records.known = chosen.known;
    m_report.messages.insert(m_report.messages.end(), chosen.messages.begin(), chosen.messages.end());
    m_failed = m_failed || (chosen.withoutRoom > 0 && bookings.count() == 0);
}

void HomeBankingImport::countRecords(std::size_t imported) {
    m_report.records.imported = imported;
    m_report.records.found = std::max(m_list.recordCount(), imported + m_report.records.known.value_or(0));
    m_report.records.refused = m_report.records.found - imported - m_report.records.known.value_or(0);
}

void HomeBankingImport::fail(Message message) {
    m_report.messages.push_back(std::move(message));
    m_failed = true;
}
