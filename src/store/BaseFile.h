#pragma once

#include "platform/datafile/Workspace.h"

/// Makes a new data file at the current version: all tables, the rows that every league starts from, and no league
/// yet. Written under another name and renamed when whole; an existing file of that name is replaced.
/// Raises datafile::Error.
void makeBaseFile(const QString& path);
