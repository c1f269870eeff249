// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportExternInterface.h"

#include "dmwrite/NodeAccess.h"
#include "dmwrite/SeesionInfo.h"
#include "framework/AssertTypeSizes.h"

Node* ImportExternInterface::createNewDataSet() const { return NodeAccess::appendRow(m_targetNode, "DataSets"); }

bool ImportExternInterface::setIDsInDataSet(Node* dataSet, const SeesionInfo& session) const {
    return NodeAccess::assignField(dataSet, "ImportID", session.m_importID) && setUniqueID(dataSet);
}
