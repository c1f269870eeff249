// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMCurrency.h"

#include <gtest/gtest.h>

namespace {

// Read by a static initialiser of this program, as libraries do at load.
const double g_maximumAtLoad = DMCurrency::MAX_CURRENCY;

TEST(DMCurrency, BoundsAreThirteenDigitsEitherWay) {
    EXPECT_EQ(DMCurrency::MAX_CURRENCY, 9999999999999.99);
    EXPECT_EQ(DMCurrency::MIN_CURRENCY, -9999999999999.99);
}

TEST(DMCurrency, BoundsHoldBeforeAnyStaticInitialiserRan) { EXPECT_EQ(g_maximumAtLoad, 9999999999999.99); }

} // namespace
