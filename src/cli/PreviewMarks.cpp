// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/PreviewMarks.h"

#include <algorithm>

#include "cli/ModelWatch.h"
#include "cli/NewRecords.h"
#include "cli/StoreComparison.h"
#include "cli/TrialModel.h"
#include "datamodel/TableSpec.h"

PreviewMarks PreviewMarks::of(const FileReading& reading, Store* store) {
    DataManager nothing;
    TrialModel trial(store != nullptr ? store->model() : nothing);
    DataManager& model = trial.model();
    model.model().schema().table("DataSets")->row.setTakesZeroDate("Datum", !reading.traits().recordPerLine);
    const NewRecords made(model);
    Progress nobody(false, {}, 0);
    const ModelWatch watch(model.model(), nobody);
    LibraryRun run;
    reading.import(run, model.root(), {});

    const std::vector<RecordNode*> records = made.rows();
    std::vector<RecordMark> marks(records.size());
    if (store != nullptr)
        marks = StoreComparison::ofRecords(*store, records);
    const std::size_t all = records.size() + watch.refusals().size();
    const std::vector<std::size_t> lines = reading.linesOfRecords(all);
    PreviewMarks result;
    auto refused = watch.refusals().begin();
    for (std::size_t record = 1, kept = 0; record <= all; ++record) {
        Row row;
        if (!lines.empty())
            row.line = lines[record - 1];
        if (refused != watch.refusals().end() && refused->record == record)
            ++refused;
        else
            row.mark = marks[kept++];
        result.rows.push_back(std::move(row));
    }
    return result;
}

std::size_t PreviewMarks::count(Resemblance::Mark mark) const {
    return static_cast<std::size_t>(std::count_if(
        rows.begin(), rows.end(), [mark](const Row& row) { return row.mark && row.mark->resemblance.mark == mark; }));
}

std::size_t PreviewMarks::refused() const {
    return static_cast<std::size_t>(std::count_if(rows.begin(), rows.end(), [](const Row& row) { return !row.mark; }));
}
