// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "framework/datamodel_api/Node.h"

/// A root without children that counts how often it was prepared for a new row.
class CountingNode : public Node {
public:
    void prepareUpdate() override {
        ++m_prepared;
        if (m_onPrepare)
            m_onPrepare();
    }
    unsigned short getNodeCount() const override { return 0; }
    DMSchemaContext* getSchemaContext() const override { return nullptr; }
    DataType getValue() const override { return {}; }
    bool setValue(const DataType& /*value*/, const NDX& /*where*/, int /*flags*/) override { return false; }

    int prepared() const { return m_prepared; }
    /// What a host does besides; may throw.
    void onPrepare(std::function<void()> action) { m_onPrepare = std::move(action); }

private:
    int m_prepared = 0;
    std::function<void()> m_onPrepare;
};
