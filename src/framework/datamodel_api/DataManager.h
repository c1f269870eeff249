// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "framework/datamodel_api/DmApi.h"
#include "framework/datamodel_api/Node.h"

/// Owns one tree of the host's data model. The library never touches it but
/// compares its size at load, so that a library and a model of different ages
/// are not mixed unnoticed.
class DM_API DataManager {
public:
    /// A fresh tree of the finance schema.
    DataManager();
    ~DataManager();

    DataManager(const DataManager&) = delete;
    DataManager& operator=(const DataManager&) = delete;

    /// The root node, alive as long as this object.
    Node* root() const;

    /// The model behind the contract, for programs that are built with it
    /// (see datamodel/DataModel.h).
    class DataModel& model() const {
        return *m_model;
    }

private:
    std::unique_ptr<class DataModel> m_model;
};
