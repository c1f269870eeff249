// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <iostream>
#include <malloc.h>
#include <string>

#include <gtest/gtest.h>

#include "datamodel/DataManager.h"
#include "framework/ImportExternData.h"
#include "homebanking/ImportHomeBankingData.h"
#include "homebanking/XmlImportData.h"
#include "reliability/Campaign.h"
#include "store/ModelAccess.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

namespace {

/// A program that imports all day long.
class GrowthTest : public ::testing::Test {
protected:
    /// What the C library keeps for reuse counts as in use; how much that is varies with the order of sizes, and
    /// not with the number of imports.
    static constexpr std::size_t kKeptForReuse = 100'000;

    static std::size_t bytesInUse() {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    }

    static long residentKiB() {
        std::ifstream status("/proc/self/statm");
        long pages = 0;
        long resident = 0;
        status >> pages >> resident;
        return resident * 4;
    }

    void importAll() const {
        DataManager model;
        RecordNode& account = ModelAccess::appendAccount(model, "0815");
        ModelAccess::set(account, "BLZ", ModelAccess::text("100"));
        for (const bool simulate : {true, false}) {
            for (const std::string& file : {m_csv, m_qif, m_bad}) {
                ColumnAssignment columns = {{{0, Import::eColDatum}, {1, Import::eColBetrag}}, 2};
                ImportInputParams params;
                params.m_fileName = file.c_str();
                params.m_targetNode = model.root();
                params.m_simulate = simulate ? 1 : 0;
                ImportExternData door;
                door.importFile(params, ';', &columns);
            }
        }
        XmlImportData data;
        data.setXmlFileName(m_xml.c_str());
        data.setImportTargetNode(model.root());
        ImportHomeBankingData().importAccountingEntries(data);
    }

    std::string write(const char* name, const std::string& bytes) const {
        StoreFolder::write(m_folder / name, bytes);
        return (m_folder / name).string();
    }

    StoreFolder m_folder;
    std::string m_csv = write("a.csv", "13.05.2004;-1,00\n14.05.2004;2,50\n");
    std::string m_bad = write("b.csv", "31.02.2004;viel\n\"offen;1\n" + std::string(5000, 'x') + "\n");
    std::string m_qif =
        write("a.qif", "!Type:Bank\nD13.5.2004\nT-1.00\nPName\nSA\n$1.00\n^\n!Type:Cat\nNB\nB1.00\n^\n");
    std::string m_xml = write("a.xml", "<?xml version=\"1.0\"?><HomeBanking version=\"1.0\"><buchungsliste blz=\"100\" "
                                       "ktonr=\"0815\"><buchung><id>1</id><betrag>1,00</betrag></buchung>"
                                       "</buchungsliste></HomeBanking>");
};

TEST_F(GrowthTest, ImportsLeaveNoMemoryBehind) {
    for (int warmUp = 0; warmUp < 20; ++warmUp)
        importAll();
    const std::size_t before = bytesInUse();
    const int rounds = Campaign::choose(300, 20000);
    for (int round = 1; round <= rounds; ++round) {
        importAll();
        if (Campaign::isFull() && round % (rounds / 10) == 0)
            std::cout << round * 7 << " imports: " << residentKiB() << " KiB resident, " << bytesInUse()
                      << " bytes in use\n";
    }
    EXPECT_LT(bytesInUse(), before + kKeptForReuse) << "after " << rounds * 7 << " imports";
}

TEST_F(GrowthTest, StoresLeaveNoMemoryBehind) {
    const auto useStore = [this] {
        Store store = Store::open(m_folder / "bestand.db", Store::Access::readWrite);
        ModelAccess::appendRecords(store.model(), 1, 2);
        store.rollback();
    };
    for (int warmUp = 0; warmUp < 20; ++warmUp)
        useStore();
    const std::size_t before = bytesInUse();
    const int rounds = Campaign::choose(100, 2000);
    for (int round = 0; round < rounds; ++round)
        useStore();
    EXPECT_LT(bytesInUse(), before + kKeptForReuse) << "after " << rounds << " openings";
}

} // namespace
