// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "dmwrite/SmartDate.h"
#include "framework/ImportInputParams.h"
#include "framework/ImportRecordSet.h"
#include "support/FinanceModel.h"
#include "support/ModelText.h"
#include "support/require.h"

/// What an import of a file answered and left behind, for comparing.
struct FileImport {
    int result = 0;
    std::string error{};
    int count = 0;
    int rows = 0; ///< records in the model
    std::string model{};
    std::vector<std::string> preview{}; ///< rows, the header first, cells behind a zero byte each

    bool operator==(const FileImport&) const = default;

    /// Runs `params` into a model of its own through `importer`, which is called
    /// with them and has the questions of the front door and the modules, and checks what holds of every import.
    template <typename Importer, typename Run>
    static FileImport run(Importer& importer, ImportInputParams params, bool simulate, const Run& import) {
        const FinanceModel model;
        params.m_targetNode = model.root();
        params.m_simulate = simulate ? 1 : 0;
        SmartDate::sm_order = 0;
        SmartDate::setupCenturyStart(model.root());
        const std::string before = simulate ? ModelText::of(*model.root()) : std::string();
        FileImport done;
        done.result = import(params);
        done.error = importer.getErrorMsg();
        done.count = importer.getLastImportedDataSetsCount();
        done.rows = model.rows("DataSets");
        done.model = ModelText::of(*model.root());
        done.takePreview(importer.getLastSimulatedImport());
        if (simulate)
            require(done.model == before, "a simulated import writes nothing");
        else
            done.requireIdentified(model);
        return done;
    }

private:
    void takePreview(const ImportRecordSet& table) {
        const auto add = [&](const auto& cell) {
            preview.emplace_back();
            for (int column = 0; column < table.getColumnCount(); ++column)
                preview.back() += cell(column) + '\0';
        };
        if (table.hasHeader())
            add([&](int column) { return table.getColumnHeader(column); });
        for (int row = 0; row < table.getRowCount(); ++row)
            add([&](int column) { return table.getString(row, column); });
    }

    /// Every record has the numbers that follow from its place.
    void requireIdentified(const FinanceModel& into) const {
        require(rows == count, "a record that is there was counted, and one that was removed was not");
        for (int row = 1; row <= rows; ++row) {
            Node* record = into.node("DataSets")->getNodeNum(static_cast<unsigned short>(row));
            require(record->getNode(NDX("UniqueID"))->getValue().getInt() == row, "unique IDs count up");
            require(record->getNode(NDX("ImportID"))->getValue().getInt() == 1, "records know their session");
        }
        require(into.integer("NextUniqueID") == rows + 1, "the next unique ID is free");
        require(into.rows("Importsessions") == (rows > 0 ? 1 : 0), "a session is written with the first record");
        require(into.integer("NextImportID") == (rows > 0 ? 2 : 1), "and takes its number");
    }
};
