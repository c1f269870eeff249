// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Programs that are built on this model find the owner of the tree here; it is
/// declared in the contract because the library compares its size at load.
#include "framework/datamodel_api/DataManager.h"
