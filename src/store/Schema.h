#pragma once

#include "platform/datafile/Definitions.h"

#include <QList>

/// The schema of a data file at the current version: the only place where a column is spelled.
/// Widths of input boxes, new files, the record classes' columns and the dialect's date columns all come from here,
/// by way of the file itself.
namespace schema {

/// The version text of a data file with this schema, as tblVersion holds it.
inline constexpr char currentVersion[] = "Version 1.39";

/// Every table, in an order in which they can be made.
QList<datafile::TableDef> tables();

}  // namespace schema

/// "Version 1.39".
QString GetCurrentDBVersion();
