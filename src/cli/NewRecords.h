// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "datamodel/DataManager.h"
#include "datamodel/RecordNode.h"

/// What an import has added to a model: taken before the import, asked after it.
class NewRecords {
public:
    explicit NewRecords(DataManager& model);

    /// The new rows of "DataSets" without a date, from 1 over the new ones.
    std::vector<std::size_t> undated() const;

    /// How many there are.
    std::size_t count() const;
    /// The new rows, in order.
    std::vector<RecordNode*> rows() const;
    /// Takes some of them, in order, out of the model.
    void remove(const std::vector<const RecordNode*>& rows) const;

    /// The session of the import; 0 when it wrote none.
    int sessionId() const;
    /// The session's file name, host bytes; nothing happens when there is no session.
    void setFileName(const std::string& name) const;

    /// The row of the session; null when it wrote none.
    RecordNode* session() const;

private:
    bool hasSession() const;

    DataManager& m_model;
    unsigned m_recordsBefore;
    unsigned m_sessionsBefore;
};
