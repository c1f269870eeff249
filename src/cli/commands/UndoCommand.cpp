// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FieldText.h"
#include "cli/FileReport.h"
#include "cli/JsonText.h"
#include "cli/Message.h"
#include "cli/ModelTables.h"
#include "cli/SessionNumber.h"
#include "cli/StoreAtPath.h"
#include "datamodel/DataModel.h"

namespace {

const char* const kOptions[] = {"--store"};

int number(RecordNode& record, const char* field) { return ModelTables::field(record, field).getValue().getInt(); }
bool flag(RecordNode& record, const char* field) { return ModelTables::field(record, field).getValue().getBoolean(); }

/// Takes back what one session brought.
class Undo {
public:
    Undo(Store& store, int session)
        : m_store(store), m_session(session), m_root(store.model().model().root()),
          m_records(ModelTables::table(m_root, "DataSets")), m_sessions(ModelTables::table(m_root, "Importsessions")) {}

    /// Whether it was done; otherwise the messages say why not, and nothing has changed.
    bool run() {
        RecordNode* session = find();
        if (session == nullptr)
            m_messages.push_back(Message::of(Problem::sessionUnknown, {std::to_string(m_session)}));
        else if (flag(*session, "Zurueckgenommen"))
            m_messages.push_back(Message::of(Problem::sessionUndone, {std::to_string(m_session)}));
        else
            noteChanged();
        m_store.throwIfUnreadable();
        if (!m_messages.empty())
            return false;
        m_removed = m_records.removeLoaded([this](RecordNode& record) { return isOurs(record); });
        ModelTables::field(*session, "Zurueckgenommen").setValue(DataType::makeBoolean(true), NDX(), 0);
        m_store.commit();
        return true;
    }

    unsigned removed() const { return m_removed; }
    const std::vector<Message>& messages() const { return m_messages; }

private:
    bool isOurs(RecordNode& record) const { return number(record, "ImportID") == m_session; }

    RecordNode* find() {
        for (unsigned row = m_sessions.getNodeCount(); row > 0; --row) {
            RecordNode* session = m_sessions.row(row);
            if (session != nullptr && number(*session, "ImportID") == m_session)
                return session;
        }
        return nullptr;
    }

    /// Loads the records of the session, and names those that somebody has edited.
    void noteChanged() {
        for (unsigned row = 1; row <= m_records.getNodeCount(); ++row) {
            RecordNode* record = m_records.row(row);
            if (record == nullptr || !isOurs(*record) || !flag(*record, "Geaendert"))
                continue;
            const std::string what = FieldText::display(ModelTables::field(*record, "Datum")) + ", " +
                                     FieldText::display(ModelTables::field(*record, "Betrag")) + ", " +
                                     FieldText::display(ModelTables::field(*record, "Empfaenger"));
            m_messages.push_back(
                Message::of(Problem::recordChanged, {std::to_string(number(*record, "UniqueID")), what}));
        }
    }

    Store& m_store;
    int m_session;
    RecordNode& m_root;
    TableNode& m_records;
    TableNode& m_sessions;
    unsigned m_removed = 0;
    std::vector<Message> m_messages;
};

ExitStatus run(const Options& options, Console& console) {
    const int session = sessionNumber(options.operands.front());
    StoreAtPath storeAtPath(options.store);
    Undo undo(storeAtPath.forExisting(), session);
    const bool done = undo.run();
    if (console.json())
        console.write(JsonText::of({{"sessionId", session},
                                    {"undone", done},
                                    {"removedCount", undo.removed()},
                                    {"messages", FileReportText::json(undo.messages())}}) +
                      "\n");
    else if (done)
        console.summary("Sitzung " + std::to_string(session) + " zurückgenommen: " + std::to_string(undo.removed()) +
                        (undo.removed() == 1 ? " Datensatz" : " Datensätze") + " entfernt.");
    console.report(storeAtPath.path().string(), undo.messages());
    return done ? ExitStatus::done : ExitStatus::refused;
}

} // namespace

const Command kUndoCommand = {"undo", "eine Importsitzung zurücknehmen", {"SITZUNG", true, false}, kOptions, run};
