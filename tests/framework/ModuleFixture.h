// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <string>

#include "framework/ImportInputParams.h"
#include "framework/ScriptedModule.h"
#include "support/FinanceModel.h"
#include "support/SmartDateFixture.h"

/// A module run on a text in memory, into a model of its own.
class ModuleFixture : public SmartDateFixture {
protected:
    ModuleFixture() = default;
    explicit ModuleFixture(const SchemaDraft& schema) : m_model(schema) {}

    /// The bytes live as long as the fixture.
    ImportInputParams paramsFor(const std::string& bytes, bool simulate = false) {
        const std::string& kept = m_inputs.emplace_back(bytes);
        ImportInputParams params;
        params.m_targetNode = m_model.root();
        params.m_simulate = simulate ? 1 : 0;
        params.setInputFileBuffer(kept.data(), kept.size());
        return params;
    }
    int import(const std::string& bytes) { return m_module.importFile(paramsFor(bytes)); }
    int simulate(const std::string& bytes) { return m_module.importFile(paramsFor(bytes, true)); }

    /// Starts an import that reads nothing, so that a test can go on with rows by itself.
    void startImport(bool simulating = false) { m_module.importFile(paramsFor("", simulating)); }

    void expectNothingWritten() const {
        EXPECT_EQ(m_model.rows("DataSets"), 0);
        EXPECT_EQ(m_model.rows("Importsessions"), 0);
        EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eEmpty);
        EXPECT_EQ(m_model.kind("NeueDatenVorhanden"), DataType::eEmpty);
        EXPECT_EQ(m_model.integer("NextImportID"), 1);
        EXPECT_EQ(m_model.integer("NextUniqueID"), 1);
    }

    FinanceModel m_model;
    ScriptedModule m_module;

private:
    std::list<std::string> m_inputs;
};
