// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "datamodel/DataManager.h"
#include "dmwrite/SmartDate.h"
#include "framework/ImportExternData.h"
#include "homebanking/ImportHomeBankingData.h"
#include "homebanking/XmlImportData.h"
#include "reliability/Campaign.h"
#include "reliability/FailingMemory.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

namespace {

/// One way through the library: true when its front door says that it went well.
struct Way {
    const char* name;
    const char* file; ///< its name; the extension picks the module
    const char* content;
    /// Blocks that Qt itself loses when an allocation in one of its functions fails.
    long lostByQt;
    /// `ready` is called when all is prepared and the front door is about to be.
    bool (*import)(const char* path, Node* target, const std::function<void()>& ready);
};

std::ostream& operator<<(std::ostream& out, const Way& way) { return out << way.name; }

int importFile(const char* path, Node* target, const std::function<void()>& ready, bool simulate) {
    ColumnAssignment columns = {{{0, Import::eColDatum},
                                 {1, Import::eColEmpfaenger},
                                 {2, Import::eColVerwendungszweck},
                                 {3, Import::eColBetrag}},
                                4};
    ImportInputParams params;
    params.m_fileName = path;
    params.m_targetNode = target;
    params.m_importInfo = "eine Beschreibung, die nicht in einen kurzen Text passt";
    params.m_simulate = simulate ? 1 : 0;
    params.m_firstLineIsHeader = 1;
    ImportExternData door;
    ready();
    return door.importFile(params, ';', &columns);
}

bool importReal(const char* path, Node* target, const std::function<void()>& ready) {
    return importFile(path, target, ready, false) == 1;
}
bool importSimulated(const char* path, Node* target, const std::function<void()>& ready) {
    return importFile(path, target, ready, true) == 2;
}

XmlImportData document(const char* path, Node* target) {
    XmlImportData data;
    data.setXmlFileName(path);
    data.setImportTargetNode(target);
    return data;
}

bool importAccounts(const char* path, Node* target, const std::function<void()>& ready) {
    const XmlImportData data = document(path, target);
    ImportHomeBankingData door;
    ready();
    return door.updateAccountList(data);
}
bool importBookings(const char* path, Node* target, const std::function<void()>& ready) {
    const XmlImportData data = document(path, target);
    ImportHomeBankingData door;
    ready();
    return door.importAccountingEntries(data);
}

constexpr const char* kCsv = "Datum;Name;Zweck;Betrag\n"
                             "13.05.2004;Ein Name, der nicht in einen kurzen Text passt;Miete;-530,00\n"
                             "14.05.2004;B;\"Ein Zweck; mit Trennzeichen und \"\"Anf\xFChrung\"\"\";1.234,50\n"
                             "31.02.2004;C;abgelehnt;1,00\n";
constexpr const char* kQif =
    "!Type:Bank\nD13.5.2004\nT-100.00\nPEin Name, der nicht in einen kurzen Text passt\nLWohnen:Miete\n"
    "SEssen\nEsplit\n$-60.00\nSReisen\n$-40.00\n^\nD14.5.2004\nT1.00\nMZweck\n^\n"
    "!Type:Cat\nNSport\nB10.00\nB10.00\n^\n";
constexpr const char* kAccounts =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<HomeBanking version=\"1.0\"><kontoliste>"
    "<konto><blz>100</blz><ktonr>0815</ktonr><bezeichnung>Giro</bezeichnung></konto>"
    "<konto><blz>100</blz><ktonr>0816</ktonr><bezeichnung>Sparen</bezeichnung></konto>"
    "</kontoliste></HomeBanking>\n";
constexpr const char* kBookings =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<HomeBanking version=\"1.0\">"
    "<buchungsliste blz=\"100\" ktonr=\"0815\">"
    "<buchung><id>B-1</id><datum>01.02.2004</datum><betrag>-1,00</betrag><empfaenger>Ein Name, der nicht in einen "
    "kurzen Text passt</empfaenger></buchung>"
    "<buchung><id>B-2</id><datum>02.02.2004</datum><betrag>2,00</betrag></buchung>"
    "</buchungsliste></HomeBanking>\n";

const Way kWays[] = {
    {"Csv", "a.csv", kCsv, 0, importReal},
    {"CsvSimulated", "a.csv", kCsv, 0, importSimulated},
    {"Qif", "a.qif", kQif, 0, importReal},
    {"QifSimulated", "a.qif", kQif, 0, importSimulated},
    {"Accounts", "konten.xml", kAccounts, 3, importAccounts},
    {"Bookings", "buchungen.xml", kBookings, 3, importBookings},
};

class AllocationFailure : public ::testing::TestWithParam<Way> {
protected:
    AllocationFailure() { StoreFolder::write(m_file, GetParam().content); }

    /// A model that has what the way needs.
    static void prepare(DataManager& model) {
        RecordNode& account = ModelAccess::appendAccount(model, "0815");
        ModelAccess::set(account, "BLZ", ModelAccess::text("100"));
    }

    bool import(
        Node* target, const std::function<void()>& ready = [] {}) const {
        return GetParam().import(m_file.c_str(), target, ready);
    }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / GetParam().file;
};

/// The library: whatever allocation fails, its front door says so, or the import is whole all the same.
TEST_P(AllocationFailure, FrontDoorReturnsAndNothingLeaks) {
    std::string whole;
    {
        DataManager model;
        prepare(model);
        ASSERT_TRUE(import(model.root()));
        whole = ModelAccess::dump(model);
    }
    std::size_t nth = 0;
    for (bool failed = true; failed;) {
        ++nth;
        SmartDate::sm_order = 0;
        bool done = false;
        bool isWhole = true;
        long left = 0;
        {
            FailingMemory memory;
            {
                DataManager model;
                prepare(model);
                done = import(model.root(), [&] { memory.failAt(nth); });
                failed = memory.hasFailed();
                memory.failAt(0);
                if (done)
                    isWhole = ModelAccess::dump(model) == whole;
            }
            left = memory.liveBlocks();
        }
        EXPECT_LE(left, GetParam().lostByQt) << "blocks were lost when allocation " << nth << " failed";
        EXPECT_TRUE(isWhole) << "nobody was told that allocation " << nth << " failed";
        EXPECT_TRUE(done || failed);
    }
    RecordProperty("allocations", static_cast<int>(nth - 1));
    EXPECT_GT(nth, FailingMemory::kFailsNewAlone ? 10U : 20U) << "too few to have failed everywhere";
}

/// With a store: all of the import or nothing is on the disk.
TEST_P(AllocationFailure, StoreHoldsAllOrNothing) {
    const std::filesystem::path prepared = m_folder / "vorlage.db";
    const std::filesystem::path file = m_folder / "bestand.db";
    const auto dumpOf = [](const std::filesystem::path& path) {
        Store store = Store::open(path, Store::Access::readOnly);
        return ModelAccess::dump(store.model());
    };
    {
        Store store = Store::open(prepared, Store::Access::readWrite);
        prepare(store.model());
        store.commit();
    }
    const std::string before = dumpOf(prepared);
    std::string after;
    const std::size_t stride = Campaign::choose<std::size_t>(23, 1);
    for (std::size_t nth = 0;; nth += stride) { // the first time nothing fails
        std::filesystem::remove(m_folder / "bestand.db-journal");
        std::filesystem::copy_file(prepared, file, std::filesystem::copy_options::overwrite_existing);
        SmartDate::sm_order = 0;
        bool committed = false;
        bool failed = false;
        {
            FailingMemory memory;
            memory.failAt(nth);
            try {
                Store store = Store::open(file, Store::Access::readWrite);
                if (import(store.model().root())) {
                    store.commit();
                    committed = true;
                }
            } catch (const StoreError&) { // NOLINT(bugprone-empty-catch): looked at below
            } catch (const std::bad_alloc&) {
            }
            failed = memory.hasFailed();
        }
        if (nth == 0) {
            ASSERT_TRUE(committed);
            after = dumpOf(file);
            continue;
        }
        EXPECT_EQ("ok", Sql(file).value("PRAGMA integrity_check")) << nth;
        const std::string stored = dumpOf(file);
        ASSERT_TRUE(stored == after || (stored == before && !committed)) << "allocation " << nth << " failed";
        if (!failed)
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(Ways, AllocationFailure, ::testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.name); });

} // namespace
