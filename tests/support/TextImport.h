// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "framework/ImportExternData.h"
#include "framework/ImportInputParams.h"
#include "support/FinanceModel.h"
#include "support/ImportedRecord.h"
#include "support/SmartDateFixture.h"
#include "support/TemporaryFile.h"

/// The two ways to a module: a host makes it itself and hands it a buffer, or
/// asks the front door for a file.
enum class ImportWay { module, frontDoor };

inline std::string nameOf(const testing::TestParamInfo<ImportWay>& info) {
    return info.param == ImportWay::module ? "ThroughTheModule" : "ThroughTheFrontDoor";
}

/// What an import answers afterwards.
struct TextImportResult {
    int result = -1;
    std::string errorText{};
    int importedCount = -1;
    int sessionId = -1;
    PreviewTable preview{};
};

template <typename Answering>
TextImportResult answersOf(const Answering& source, int result) {
    return {result, source.getErrorMsg(), source.getLastImportedDataSetsCount(), source.getLastImportedSessionID(),
            previewTable(source.getLastSimulatedImport())};
}

/// Runs the input in memory through a module that is there already.
template <typename Module>
TextImportResult runModule(Module& module, std::string_view bytes, Node* root, bool simulate = false) {
    ImportInputParams params;
    params.m_targetNode = root;
    params.m_simulate = simulate ? 1 : 0;
    params.setInputFileBuffer(bytes.data(), bytes.size());
    const int result = module.importFile(params);
    return answersOf(module, result);
}

/// Runs a file of the given name through the front door, with arguments that
/// concern delimited lists alone.
inline TextImportResult runFrontDoor(std::string_view bytes, const std::string& fileName, Node* root,
                                     bool simulate = false, bool firstLineIsHeader = false) {
    const TemporaryFile file(bytes, fileName);
    ImportInputParams params;
    params.m_fileName = file.path();
    params.m_targetNode = root;
    params.m_simulate = simulate ? 1 : 0;
    params.m_firstLineIsHeader = firstLineIsHeader ? 1 : 0;
    ImportExternData door;
    const int result = door.importFile(params, ';', nullptr);
    return answersOf(door, result);
}

/// Runs an input both ways.
template <typename Module>
class TextImport : public SmartDateFixture, public testing::WithParamInterface<ImportWay> {
protected:
    TextImportResult import(std::string_view bytes, const FinanceModel& into) const { return run(bytes, into, false); }
    TextImportResult preview(std::string_view bytes, const FinanceModel& into = FinanceModel()) const {
        return run(bytes, into, true);
    }

private:
    TextImportResult run(std::string_view bytes, const FinanceModel& into, bool simulate) const {
        if (GetParam() == ImportWay::frontDoor)
            return runFrontDoor(bytes, std::string("import.") + Module::m_MyFileExtension, into.root(), simulate);
        Module module;
        return runModule(module, bytes, into.root(), simulate);
    }
};
