// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "datamodel/ModelContext.h"
#include "datamodel/RecordNode.h"
#include "datamodel/RecordSpec.h"
#include "framework/datamodel_api/DmApi.h"

/// One tree and the schema that describes it. `DataManager` owns one.
class DM_API DataModel {
public:
    static constexpr unsigned short kCenturyWindowStart = 30;

    explicit DataModel(RecordSpec schema, unsigned short centuryWindowStart = kCenturyWindowStart);
    ~DataModel();
    DataModel(const DataModel&) = delete;
    DataModel& operator=(const DataModel&) = delete;

    RecordNode& root() const { return *m_root; }
    RecordSpec& schema() { return m_schema; }
    const RecordSpec& schema() const { return m_schema; }

    /// Who hears of every write to this tree from now on; null for nobody. Must
    /// outlive the tree, or take itself off.
    void setObserver(ModelObserver* observer) { m_context.setObserver(observer); }

private:
    RecordSpec m_schema;
    ModelContext m_context;
    RecordNode* m_root;
};
