// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMCurrency.h"

// Constants of the compiler: they hold before any static initialiser has run.
constinit const double DMCurrency::MIN_CURRENCY = -9999999999999.99;
constinit const double DMCurrency::MAX_CURRENCY = 9999999999999.99;
