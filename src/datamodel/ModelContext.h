// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DMSchemaContext.h"

class ModelObserver;

/// What all nodes of one tree share: the schema's settings, and who watches.
class ModelContext : public DMSchemaContext {
public:
    using DMSchemaContext::DMSchemaContext;

    /// Null while nobody watches.
    ModelObserver* observer() const { return m_observer; }
    void setObserver(ModelObserver* observer) { m_observer = observer; }

private:
    ModelObserver* m_observer = nullptr;
};
