// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"

/// The key of a child node. Holds the name by pointer: the text must outlive
/// the key (names are literals as a rule).
class DM_API NDX {
public:
    /// Addresses the node itself.
    NDX() = default;
    explicit NDX(const char* name) : m_name(name) {}

    /// Null for the key of the node itself.
    const char* name() const { return m_name; }

private:
    const char* m_name = nullptr;
};
