#include "sample_league/Rows.h"

namespace sample {

Rows::Rows(const datafile::Database& database, const char* table) : rows_(database.openRecordset(table)) {}

int Rows::add(const Cells& cells, const Saved& saved) {
    rows_.addNew();
    for (const Cell& cell : cells) rows_.set(cell.column, cell.value);
    rows_.set("DateStamp", saved.day);
    rows_.set("TimeStamp", saved.second);
    rows_.set("DeletedFlag", saved.deleted);
    rows_.update();
    return static_cast<int>(rows_.lastModified());
}

}  // namespace sample
