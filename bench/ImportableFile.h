// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Bookings.h"
#include "framework/ImportExternData.h"
#include "support/TemporaryFile.h"

/// A file of made-up bookings that the front door imports.
class ImportableFile {
public:
    /// `bytes` hold `count` bookings; the extension of `name` chooses the module.
    ImportableFile(const std::string& name, std::string_view bytes, std::uint32_t count)
        : m_file(bytes, name), m_size(bytes.size()), m_count(count) {}

    /// Delimited text, as nearly all files are.
    explicit ImportableFile(std::uint32_t count) : ImportableFile("bookings.csv", Bookings::file(count), count) {}

    std::size_t size() const { return m_size; } ///< in bytes
    std::size_t count() const { return m_count; }

    /// Imports into the tree below `root`; whether every booking is there afterwards.
    bool importInto(Node* root, ImportExternData& frontDoor, bool simulate = false) const {
        ImportInputParams params;
        params.m_fileName = m_file.path();
        params.m_targetNode = root;
        params.m_firstLineIsHeader = 1;
        params.m_simulate = simulate ? 1 : 0;
        ColumnAssignment columns = assignment();
        return frontDoor.importFile(params, Bookings::kDelimiter, &columns) != 0 &&
               frontDoor.getLastImportedDataSetsCount() == static_cast<int>(m_count);
    }

private:
    /// That of `Bookings::kColumns`.
    static ColumnAssignment assignment() {
        using namespace Import;
        return {{{0, eColDatum},
                 {1, eColEmpfaenger},
                 {2, eColKategorie},
                 {3, eColUnterkategorie},
                 {4, eColVerwendungszweck},
                 {5, eColBuchungstext},
                 {6, eColBetrag}},
                7};
    }

    TemporaryFile m_file;
    std::size_t m_size;
    std::uint32_t m_count;
};
