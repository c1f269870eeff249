// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"

/// The bounds of every amount that the host stores, in currency units. Both
/// bounds are themselves allowed. Provided by the host.
class DM_API DMCurrency {
public:
    static const double MIN_CURRENCY;
    static const double MAX_CURRENCY;
};
