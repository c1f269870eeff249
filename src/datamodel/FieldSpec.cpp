// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/FieldSpec.h"

#include "framework/datamodel_api/DMCurrency.h"

bool FieldSpec::takes(const DataType& value) const {
    if (value.kind() != kind || kind == DataType::eEmpty)
        return false;
    if (kind == DataType::eCurrency) {
        const double amount = value.getCurrency();
        return amount >= DMCurrency::MIN_CURRENCY && amount <= DMCurrency::MAX_CURRENCY; // false of what is no number
    }
    return kind != DataType::eDate || takesZeroDate || !value.getDate().isZero();
}
