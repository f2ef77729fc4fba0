#include "platform/datafile/SqlFunctions.h"

#include "platform/text/Collation.h"

#include <QVarLengthArray>
#include <sqlite3.h>

namespace datafile::sql {

namespace {

/// Texts joined, nothing read as "".
void joined(sqlite3_context* context, int count, sqlite3_value** values) {
    QVarLengthArray<char, 256> text;
    for (int i = 0; i < count; ++i) {
        const int size = sqlite3_value_bytes(values[i]);
        text.append(static_cast<const char*>(sqlite3_value_blob(values[i])), size);
    }
    sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// "2026-04-02" as "4/2/2026"; what is no date stays as it is.
void shortDate(sqlite3_context* context, int, sqlite3_value** values) {
    const int size = sqlite3_value_bytes(values[0]);
    const auto* iso = static_cast<const char*>(sqlite3_value_blob(values[0]));
    if (size < 10 || iso[4] != '-' || iso[7] != '-') return sqlite3_result_value(context, values[0]);
    char text[11];
    int at = 0;
    for (const int part : {5, 8}) {
        if (iso[part] != '0') text[at++] = iso[part];
        text[at++] = iso[part + 1];
        text[at++] = '/';
    }
    for (int i = 0; i < 4; ++i) text[at++] = iso[i];
    sqlite3_result_text(context, text, at, SQLITE_TRANSIENT);
}

int compareAsNames(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return compareNames({static_cast<const char*>(left), static_cast<size_t>(leftSize)},
                        {static_cast<const char*>(right), static_cast<size_t>(rightSize)});
}

}  // namespace

void addFunctions(sqlite3* handle) {
    constexpr int kind = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
    sqlite3_create_function(handle, "joined", -1, kind, nullptr, joined, nullptr, nullptr);
    sqlite3_create_function(handle, "shortdate", 1, kind, nullptr, shortDate, nullptr, nullptr);
    sqlite3_create_collation(handle, "Names", SQLITE_UTF8, nullptr, compareAsNames);
}

}  // namespace datafile::sql
