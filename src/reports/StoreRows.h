#pragma once

#include "platform/datafile/Database.h"
#include "platform/report/RowSource.h"

/// The rows of a data file for reports. Queries are in the query dialect; each "?" in one takes the next of its values.
report::RowSourceFactory storeRows(const datafile::Database& database);
