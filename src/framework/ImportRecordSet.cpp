// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportRecordSet.h"

#include "framework/AssertTypeSizes.h"

ImportRecordSet::~ImportRecordSet() = default;
