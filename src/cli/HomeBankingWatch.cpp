// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingWatch.h"

#include "cli/HomeBankingDocument.h"
#include "datamodel/TableNode.h"

HomeBankingWatch::HomeBankingWatch(DataModel& model, Progress& progress) : m_model(model), m_progress(progress) {
    m_model.setObserver(this);
}

HomeBankingWatch::~HomeBankingWatch() { m_model.setObserver(nullptr); }

void HomeBankingWatch::rowAppended(const TableNode& table, const RecordNode& /*row*/) {
    m_table = &table;
    ++m_rows;
    m_progress.step();
}

void HomeBankingWatch::valueRefused(const RecordNode& record, const FieldSpec& field, const DataType& /*value*/) {
    const bool ofBooking = m_table != nullptr && &record.spec() == &m_table->rowSpec();
    if (ofBooking && !BookingElements::of(field.name).empty())
        m_field = field.name;
    else
        m_bookkeeping = field.name;
}
