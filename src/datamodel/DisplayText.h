// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DMDate.h"

/// The display form of values, the same under every locale.
namespace DisplayText {

/// An amount with decimal comma, rounded like printf("%.*f") rounds the double
/// (correctly, ties of the binary value to even): `1.234,56`, `-20,00`.
/// `grouped` sets a dot before every third digit left of the comma. Zero has no
/// sign, be it a negative zero or what rounds to it: -0.004 is `0,00`. What is
/// no number at all is `nan`, `inf` or `-inf`.
std::string amount(double value, bool grouped, unsigned short decimals);

/// `dd.mm.yyyy`; the zero date is the empty text.
std::string date(const DMDate& date);

} // namespace DisplayText
