// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DataModelApi.h"

class QString;

/// The steps that this path adds to NodeAccess. The host's texts are Latin-1
/// and end at their first zero byte; of a document's text, a character outside
/// Latin-1 becomes "?".
namespace HostAccess {

std::string text(const QString& text);
DataType textValue(const QString& text);

/// A row's text field; empty when there is no such field or it holds no text.
std::string fieldText(const Node& row, const char* field);

/// Appends a row; null when there is no table or it takes no more rows. Unlike
/// an import's own record, such a row is not announced to the root.
Node* appendRow(NodeTable* table);

} // namespace HostAccess
