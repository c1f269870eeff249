// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"

/// Settings of the schema that a node belongs to. Owned by the host's model and
/// alive as long as it.
class DM_API DMSchemaContext {
public:
    explicit DMSchemaContext(unsigned short centuryWindowStart) : m_centuryWindowStart(centuryWindowStart) {}

    /// The pivot of two-digit years: up to and including it they lie in the
    /// 2000s, above it in the 1900s. Provided by the host.
    unsigned short getCenturyWindowStart() const;

private:
    unsigned short m_centuryWindowStart;
};
