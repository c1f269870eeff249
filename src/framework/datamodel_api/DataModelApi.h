// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// The whole contract between the import library and the host's data model.
/// The library includes this header and nothing else of the host.
#include "framework/datamodel_api/AssertTypeSize_DataManager.h"
#include "framework/datamodel_api/AssertTypeSize_Node.h"
#include "framework/datamodel_api/CrossPlatformApi.h"
#include "framework/datamodel_api/DataManager.h"
#include "framework/datamodel_api/DataType.h"
#include "framework/datamodel_api/DMCurrency.h"
#include "framework/datamodel_api/DMDate.h"
#include "framework/datamodel_api/DMSchemaContext.h"
#include "framework/datamodel_api/DMStringFunctions.h"
#include "framework/datamodel_api/NDX.h"
#include "framework/datamodel_api/Node.h"
#include "framework/datamodel_api/NodeTable.h"
