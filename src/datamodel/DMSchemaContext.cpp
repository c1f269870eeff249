// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMSchemaContext.h"

unsigned short DMSchemaContext::getCenturyWindowStart() const { return m_centuryWindowStart; }
