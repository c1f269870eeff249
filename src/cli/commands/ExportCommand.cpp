// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/ExportChoice.h"
#include "cli/ExportLosses.h"
#include "cli/ModelTables.h"
#include "cli/SafeText.h"
#include "cli/StoreAtPath.h"
#include "datamodel/DataModel.h"
#include "datamodel/HostText.h"
#include "datamodel/TableSpec.h"
#include "export/ExportBookingFields.h"
#include "export/ExportRecordFields.h"

namespace {

const char* const kOptions[] = {"--store", "--to", "--session", "--since", "--until", "--account"};

constexpr std::size_t kBlock = 1 << 16; // bytes that are written at once

/// The result on its way out. On a terminal it is made harmless, elsewhere it goes as it is.
class Outlet {
public:
    explicit Outlet(Console& console) : m_console(console) {}

    std::string& text() { return m_text; }
    void passOnBlock() {
        if (m_text.size() >= kBlock)
            passOn();
    }
    void passOn() {
        if (m_console.width() == 0)
            m_console.write(m_text);
        else
            show();
        m_text.clear();
    }

private:
    void show() {
        std::string_view rest = m_text;
        while (!rest.empty()) {
            const std::size_t end = rest.find('\n');
            m_console.write(SafeText::printable(rest.substr(0, end)));
            if (end == std::string_view::npos)
                return;
            m_console.write("\n");
            rest.remove_prefix(end + 1);
        }
    }

    Console& m_console;
    std::string m_text;
};

class Export {
public:
    Export(Store& store, const ExportChoice& choice)
        : m_store(store), m_choice(choice), m_root(store.model().model().root()) {}

    /// Whether there is something to write out; otherwise the messages say why not.
    bool find() {
        findSessions();
        if (m_choice.account)
            findBookings();
        else
            findRecords();
        m_store.throwIfUnreadable();
        return m_messages.empty();
    }

    void write(Outlet& outlet) {
        const auto writer = m_choice.format->writer(m_context);
        std::size_t count = 0;
        writer->begin(outlet.text());
        for (unsigned number = 1; number <= m_rows->getNodeCount(); ++number) {
            const ExportRecord record = m_read(*m_rows->row(number));
            if (!m_choice.takes(record))
                continue;
            ++count;
            writer->add(record, outlet.text());
            outlet.passOnBlock();
        }
        writer->end(outlet.text());
        outlet.passOn();
        m_messages = ExportLosses::messages(writer->losses());
        if (count == 0)
            m_messages.push_back(nothing());
    }

    const std::vector<Message>& messages() const { return m_messages; }

private:
    void findSessions() {
        TableNode& table = ModelTables::table(m_root, "Importsessions");
        for (unsigned number = 1; number <= table.getNodeCount(); ++number) {
            if (RecordNode* session = table.row(number))
                m_context.sessions[ModelTables::field(*session, "ImportID").integer()] = session;
        }
    }

    void findRecords() {
        if (m_choice.session)
            checkSession(*m_choice.session);
        m_rows = &ModelTables::table(m_root, "DataSets");
        m_read = [fields = ExportRecordFields(m_rows->rowSpec())](const RecordNode& row) { return fields.of(row); };
        load();
    }

    void checkSession(int number) {
        const auto found = m_context.sessions.find(number);
        if (found == m_context.sessions.end()) {
            m_messages.push_back(Message::of(Problem::sessionUnknown, {std::to_string(number)}));
            return;
        }
        const std::size_t undone = *found->second->spec().fieldIndex("Zurueckgenommen");
        if (found->second->fields()[undone].getValue().getBoolean())
            m_messages.push_back(Message::of(Problem::sessionUndone, {std::to_string(number)}));
    }

    void findBookings() {
        TableNode& accounts = ModelTables::table(m_root, "HomeBankingImport");
        m_context.content = ExportContent::bookings;
        for (unsigned number = 1; number <= accounts.getNodeCount() && m_context.account == nullptr; ++number) {
            RecordNode* account = accounts.row(number);
            if (account == nullptr || nameOf(*account) != *m_choice.account)
                continue;
            m_context.account = account;
            m_rows = &ModelTables::table(*account, "DataSets");
            m_read = [fields = ExportBookingFields(*account, m_rows->rowSpec())](const RecordNode& row) {
                return fields.of(row);
            };
            load();
        }
        if (m_context.account == nullptr) {
            const std::string name = HostText::toUtf8(*m_choice.account);
            const std::size_t slash = name.find('/');
            m_messages.push_back(Message::of(Problem::accountUnknown, {name.substr(slash + 1), name.substr(0, slash)}));
        }
    }

    static std::string nameOf(RecordNode& account) {
        std::string name(ModelTables::field(account, "BLZ").text());
        name += '/';
        return name += ModelTables::field(account, "KtoNummer").text();
    }

    /// Before the first of them is written: a document is whole, or there is none.
    void load() {
        for (unsigned number = 1; number <= m_rows->getNodeCount(); ++number)
            m_rows->row(number);
    }

    Message nothing() {
        const unsigned accounts = ModelTables::table(m_root, "HomeBankingImport").getNodeCount();
        if (m_choice.account || m_rows->getNodeCount() > 0 || accounts == 0)
            return Message::of(Problem::exportEmpty, {});
        return Message::of(Problem::exportEmptyButAccounts,
                           {std::to_string(accounts) + (accounts == 1 ? " Konto" : " Konten")});
    }

    Store& m_store;
    const ExportChoice& m_choice;
    RecordNode& m_root;
    ExportContext m_context;
    TableNode* m_rows = nullptr;
    std::function<ExportRecord(const RecordNode&)> m_read;
    std::vector<Message> m_messages;
};

ExitStatus run(const Options& options, Console& console) {
    const ExportChoice choice = ExportChoice::from(options);
    StoreAtPath storeAtPath(options.store);
    Export task(storeAtPath.forReading(), choice);
    if (task.find()) {
        Outlet outlet(console);
        task.write(outlet);
    }
    console.report(storeAtPath.path().string(), task.messages());
    for (const Message& message : task.messages()) {
        if (message.isError())
            return ExitStatus::refused;
    }
    return ExitStatus::done;
}

} // namespace

const Command kExportCommand = {"export", "Bestand ausgeben", {nullptr, false, false}, kOptions, run};
