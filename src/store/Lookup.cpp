#include "store/Lookup.h"

QString ReadFieldValue(StoreContext& context, const QString& path, const QString& field, const QString& query,
                       const QString& criterion) {
    datafile::Recordset rows = context.workspace.openDatabase(path).openRecordset(query);
    if (rows.eof()) return {};
    if (criterion.isEmpty()) {
        rows.moveLast();
    } else {
        rows.findFirst(criterion);
        if (rows.noMatch()) return {};
    }
    return rows.text(field);
}
