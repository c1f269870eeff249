// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "export/ExportFormats.h"
#include "export/ExportRecordFields.h"
#include "support/RecordBook.h"

/// Everything that a format writes of a model's records.
struct WrittenText {
    std::string text;
    Losses losses;

    WrittenText(const char* format, DataManager& model) {
        ExportContext context;
        TableNode& sessions = RecordBook::table(model, "Importsessions");
        for (unsigned number = 1; number <= sessions.getNodeCount(); ++number)
            context.sessions[RecordBook::field(*sessions.row(number), "ImportID").integer()] = sessions.row(number);
        const auto writer = ExportFormats::byName(format)->writer(context);
        TableNode& records = RecordBook::table(model, "DataSets");
        const ExportRecordFields fields(records.rowSpec());
        writer->begin(text);
        for (unsigned number = 1; number <= records.getNodeCount(); ++number)
            writer->add(fields.of(*records.row(number)), text);
        writer->end(text);
        losses = writer->losses();
    }

    std::size_t lost(Loss loss) const { return losses.of(loss).size(); }
};
