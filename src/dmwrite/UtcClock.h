// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DMDate.h"

namespace UtcClock {

/// Today's date in UTC, so that the stamp does not depend on the time zone.
DMDate today();

} // namespace UtcClock
