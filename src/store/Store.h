// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string_view>

#include "datamodel/DataManager.h"
#include "store/StoreAccess.h"
#include "store/StoredDays.h"
#include "store/StoreError.h"

/// A data model kept in a file. Rows are loaded when first asked for, and only
/// what changed is written. For one thread at a time.
///
/// Opened for reading, a store shows one state of the file for as long as it is
/// open; a program that wants to write meanwhile prepares its work undisturbed but waits
/// for the reader to finish before it commits, so do not keep one open idly.
class Store {
public:
    using Access = StoreAccess;

    static constexpr std::chrono::milliseconds kPatience{3000};

    /// Opens the store at `path` (bytes as the file system has them). For
    /// writing it is created where it does not exist, for the user alone, and
    /// the write lock is taken. Waits up to `patience` for another program,
    /// here and in every later call that meets one.
    /// Throws StoreError; then nothing was written.
    static Store open(const std::filesystem::path& path, Access access, std::chrono::milliseconds patience = kPatience);

    ~Store();
    Store(Store&&) noexcept;
    Store& operator=(Store&&) noexcept;

    /// The tree as stored, with the changes made to it since; owned by the
    /// store. Takes the write lock again when a commit released it; when another program
    /// has written in between, the tree is a new one and old node pointers are dead, so ask
    /// for it at the start of every transaction. Throws StoreError.
    DataManager& model();

    /// Shows the rows of some days as the file has them, without loading the tree
    /// and without the changes that were made to it since the last commit. Throws StoreError.
    void visitRecords(const StoredDays& days, const RowVisitor& use);
    /// The same for the bookings of an account, a row of this store's tree; it
    /// has none in the file while it is new.
    void visitBookings(const RecordNode& account, const StoredDays& days, const RowVisitor& use);

    /// The same for the rows of `table`, one of the root's, whose text `field` is `text` (host bytes).
    void visitMatches(const char* table, const char* field, std::string_view text, const RowVisitor& use);

    /// Writes all changes since the last commit as one transaction and releases
    /// the write lock. Throws StoreError; then the file is as it was and the
    /// changes are still in the model, to be committed again or rolled back.
    /// Refuses (readOnly) when opened for reading, and after a failed load.
    void commit();

    /// Forgets all changes since the last commit. Every node pointer is dead
    /// afterwards; `model()` gives a fresh tree, with the switches of its schema's date fields kept.
    void rollback();

    /// A row that cannot be read (damage, a value from a foreign hand) is a null
    /// node to who asks for it. This throws the StoreError of the first one, if
    /// there was any; to be called when reading is done.
    void throwIfUnreadable() const;

    /// For a program that is about to end: its memory goes at once then, which is
    /// faster than to release every record before. Only destroying the store is
    /// allowed afterwards.
    void leaveModel() noexcept;

private:
    class Impl;
    explicit Store(std::unique_ptr<Impl> impl);

    std::unique_ptr<Impl> m_impl;
};
