// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/JsonText.h"
#include "datamodel/FieldNode.h"
#include "datamodel/FieldSpec.h"

/// A field of the model for the machine and for a person.
namespace FieldText {

/// Texts as strings, amounts and integers as numbers, dates in ISO form; a date
/// or number that is not there is null, a text that is not there empty.
Json json(const FieldNode& field, const FieldSpec& spec);
/// The model's display form, printable UTF-8.
std::string display(const FieldNode& field);

} // namespace FieldText
