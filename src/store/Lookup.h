#pragma once

#include "store/StoreContext.h"

/// One field of one row of a query: the first row that meets the criterion, or the query's last row without one.
/// "" when there is no such row. `path` is the data file to read, normally the program's own.
QString ReadFieldValue(StoreContext& context, const QString& path, const QString& field, const QString& query,
                       const QString& criterion = {});
