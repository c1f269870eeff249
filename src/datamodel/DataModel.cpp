// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/DataModel.h"

#include <utility>

DataModel::DataModel(RecordSpec schema, unsigned short centuryWindowStart)
    : m_schema(std::move(schema)), m_context(centuryWindowStart), m_root(RecordNode::make(m_schema, m_context)) {}

DataModel::~DataModel() { RecordNode::destroy(m_root); }
