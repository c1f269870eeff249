// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportModuleBase.h"

#include "framework/AssertTypeSizes.h"

const ImportRecordSet& ImportModuleBase::getLastSimulatedImport() const { return m_simulatedImport; }
