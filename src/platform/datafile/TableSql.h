#pragma once

#include "platform/datafile/Definitions.h"

/// How definitions are written in the file. Every rule of a definition (width, required, zero length, flags that are
/// never null, relations) is a constraint of the file itself, so that it holds whoever writes.
namespace datafile::sql {

QString identifier(const QString& name);
QString literal(const QString& text);
QString column(const FieldDef& field);
QString createTable(const TableDef& table);
QString createIndex(const QString& table, const IndexDef& index);
/// Index names are unique in the file; in the file they carry their table's name in front.
QString indexName(const QString& table, const QString& index);

/// What a column's declared type, default and constraints in a CREATE TABLE text mean; the reverse of column().
FieldDef readColumn(const QString& name, const QString& declaredType, bool notNull, const QString& defaultSql,
                    bool isKey, const QString& tableSql);
QList<RelationDef> readRelations(const QString& table, const QString& tableSql);

}  // namespace datafile::sql
