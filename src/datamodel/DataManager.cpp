// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DataManager.h"

#include "datamodel/DataModel.h"
#include "datamodel/FinanceSchema.h"

DataManager::DataManager() : m_model(std::make_unique<DataModel>(makeFinanceSchema())) {
    for (const char* counter : {"NextImportID", "NextUniqueID"})
        root()->getNode(NDX(counter))->setValue(DataType::makeInteger(1), NDX(), 0);
}

DataManager::~DataManager() = default;

Node* DataManager::root() const { return &m_model->root(); }
