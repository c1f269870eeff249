// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "framework/ImportFileBase.h"

/// A module whose handling of a line is the test's, and whose row operations
/// and state are open to it.
class ScriptedModule : public ImportFileBase {
public:
    using LineHandler = std::function<bool(char* line)>;

    /// Takes every line and does nothing.
    ScriptedModule() = default;
    explicit ScriptedModule(LineHandler onLine) : m_onLine(std::move(onLine)) {}

    void onLine(LineHandler handler) { m_onLine = std::move(handler); }

    /// What reached the module: the lines, the numbers they had and the node that came with the last.
    const std::vector<std::string>& lines() const { return m_lines; }
    const std::vector<int>& lineNumbers() const { return m_lineNumbers; }
    const Node* targetOfLastLine() const { return m_target; }

    /// The preview column of every data-model column; the column's own number while this is empty.
    void showAllColumnsIn(int column) { m_previewColumn = column; }

    const char* getFileExtension() const override { return "txt"; }
    bool processLine(char* line, Node* target) override {
        m_lines.emplace_back(line);
        m_lineNumbers.push_back(m_lineNo);
        m_target = target;
        return !m_onLine || m_onLine(line);
    }
    int getInputFileColNo(Import::E_ColumnIndex column) override {
        return m_previewColumn != kOwnNumber ? m_previewColumn : ImportFileBase::getInputFileColNo(column);
    }

    using ImportFileBase::appendErrorMsg;
    using ImportFileBase::completeRowImport;
    using ImportFileBase::isEmptyLine;
    using ImportFileBase::setColumnVal;
    using ImportFileBase::setErrorLineMsg;
    using ImportFileBase::setImportSessionInfo;
    using ImportFileBase::setupImportDate;
    using ImportFileBase::startRow;

    using ImportFileBase::m_currentRow;
    using ImportFileBase::m_importedCount;
    using ImportFileBase::m_lineNo;
    using ImportFileBase::m_newDataFlagged;
    using ImportFileBase::m_processedCount;
    using ImportFileBase::m_result;
    using ImportFileBase::m_session;
    using ImportFileBase::m_simulate;
    using ImportFileBase::m_skipRow;
    using ImportFileBase::m_targetNode;
    using ImportModuleBase::m_format;

private:
    static constexpr int kOwnNumber = -1000;

    LineHandler m_onLine;
    std::vector<std::string> m_lines;
    std::vector<int> m_lineNumbers;
    const Node* m_target = nullptr;
    int m_previewColumn = kOwnNumber;
};
