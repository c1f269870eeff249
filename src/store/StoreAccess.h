// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// What a store is opened for.
enum class StoreAccess { readOnly, readWrite };
