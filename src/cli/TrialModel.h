// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "datamodel/DataManager.h"

/// A store's model without its records and bookings: what an import makes in it
/// is numbered as the store would, finds as much room as a whole table has, and
/// can be looked at, and thinned out, before the store takes it.
class TrialModel {
public:
    explicit TrialModel(DataManager& store);

    DataManager& model() { return m_model; }

    /// Appends what was made to the store's model, which must have room for it
    /// and be the one that this was made from. To be called once.
    void moveInto(DataManager& store);

private:
    DataManager m_model;
};
