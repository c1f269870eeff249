// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>

#include "ImportableFile.h"
#include "store/SqliteRuntime.h"
#include "store/Store.h"
#include "support/TemporaryFile.h"

/// A store of made-up bookings, the "DataSets" of the tree, in a folder of its own.
class BookingsStore {
public:
    explicit BookingsStore(std::uint32_t count) {
        Store store = openNew(m_folder);
        ImportExternData frontDoor;
        if (!ImportableFile(count).importInto(store.model().root(), frontDoor))
            throw std::runtime_error("not every booking was imported");
        store.commit();
    }

    Store open() const { return Store::open(pathIn(m_folder), Store::Access::readOnly); }

    /// An empty one, for writing, with SQLite set up as the command does it.
    static Store openNew(const TemporaryFolder& folder) {
        SqliteRuntime::serveOneThread();
        return Store::open(pathIn(folder), Store::Access::readWrite);
    }

private:
    static std::filesystem::path pathIn(const TemporaryFolder& folder) { return folder.path() / "bestand.db"; }

    TemporaryFolder m_folder;
};
