#pragma once

#include "platform/datafile/Workspace.h"

#include <QMap>
#include <functional>

/// Makes a new data file at the current version: all tables, the rows that every league starts from, and no league
/// yet. Written under another name and renamed when whole; an existing file of that name is replaced.
/// Raises datafile::Error.
void makeBaseFile(const QString& path);

/// A row that every league starts from: column name -> text.
using BaseRow = QMap<QString, QString>;

/// Adds the rows of that table that a new data file has; without `wanted` all of them.
void addBaseRows(const datafile::Database& database, const QString& table,
                 const std::function<bool(const BaseRow&)>& wanted = {});
