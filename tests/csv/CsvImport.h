// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "csv/ImportModuleCSV.h"
#include "dmwrite/SmartDate.h"
#include "framework/ImportInputParams.h"
#include "support/FinanceModel.h"

/// One import of a text in memory, by a module of its own, into a model of its
/// own. The delimiter is ";" unless set.
class CsvImport {
public:
    struct Module : ImportModuleCSV {
        using ImportModuleCSV::m_delimiter;
        using ImportModuleCSV::m_format;
        using ImportModuleCSV::m_processedCount;
    };

    CsvImport() : CsvImport(SchemaDraft::finance()) {}
    explicit CsvImport(const SchemaDraft& schema) : model(schema) {
        SmartDate::sm_order = 0;
        module.m_delimiter = ';';
    }

    CsvImport& assign(const ColumnAssignment& assignment) {
        module.assignColumns(assignment);
        return *this;
    }
    CsvImport& withHeader() {
        params.m_firstLineIsHeader = 1;
        return *this;
    }
    CsvImport& simulated() {
        params.m_simulate = 1;
        return *this;
    }

    int run(std::string_view text) {
        params.setInputFileBuffer(text.data(), text.size());
        params.m_targetNode = model.root();
        return module.importFile(params);
    }

    const ImportRecordSet& preview() const { return module.getLastSimulatedImport(); }

    std::vector<std::string> previewRow(int row) const {
        std::vector<std::string> cells;
        for (int column = 0; column < preview().getColumnCount(); ++column)
            cells.push_back(preview().getString(row, column));
        return cells;
    }

    std::vector<std::string> previewHeader() const {
        std::vector<std::string> cells;
        for (int column = 0; column < preview().getColumnCount(); ++column)
            cells.push_back(preview().getColumnHeader(column));
        return cells;
    }

    /// A column of "DataSets" over all rows, in display form.
    std::vector<std::string> records(const std::string& column) const {
        std::vector<std::string> cells;
        for (int row = 1; row <= model.rows("DataSets"); ++row)
            cells.push_back(model.text("DataSets/" + std::to_string(row) + "/" + column));
        return cells;
    }

    FinanceModel model;
    Module module;
    ImportInputParams params;
};
