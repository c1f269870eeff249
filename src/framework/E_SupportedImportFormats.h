// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Import {

/// The file formats, as hosts store them and as sessions record them.
enum E_SupportedImportFormats : int {
    eFormatStarMoney = 0,
    eFormatCSV = 1, ///< also read for every unknown extension
    eFormatQIF = 2,
    eFormatTaxData = 3,
    // 4 is reserved: no format, no module
    eFormatZasterhof = 5,
    eFormatNone = 99 ///< no module made yet
};

} // namespace Import
