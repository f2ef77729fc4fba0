#pragma once

struct sqlite3;

namespace datafile::sql {

/// Gives an open file the functions that queries are written with, and the order of names. Neither is ever used in the
/// file itself: any other tool can read it.
void addFunctions(sqlite3* handle);

}  // namespace datafile::sql
