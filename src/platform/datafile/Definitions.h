#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace datafile {

enum class ColumnType { AutoKey, Long, Integer, Boolean, Date, Double, Text };

/// One column of a table.
struct FieldDef {
    QString name;
    ColumnType type = ColumnType::Text;
    int size = 0;  ///< most characters of a text; other types have none
    bool required = false;
    bool allowZeroLength = true;  ///< whether a text may be ""
    QString defaultValue{};       ///< as it stands in a row: "0", "$0.00"; an empty text column's default is ""
    bool hasDefault = false;
    bool operator==(const FieldDef&) const = default;
};

/// An index; the name need only be unique within its table.
struct IndexDef {
    QString name;
    QStringList fields;
    bool primary = false;
    bool unique = false;
    bool operator==(const IndexDef&) const = default;
};

/// Rows of `foreignTable` must name a row of `table` by `field` (found in `foreignTable` as `foreignField`).
struct RelationDef {
    QString name;
    QString table;
    QString field;
    QString foreignTable;
    QString foreignField;
    bool operator==(const RelationDef&) const = default;
};

/// A table as it stands in a data file, or as it is to be made.
struct TableDef {
    QString name;
    QList<FieldDef> fields{};
    QList<IndexDef> indexes{};
    QList<RelationDef> relations{};  ///< those in which this is the foreign table
    bool operator==(const TableDef&) const = default;

    /// Names of tables, columns and indexes are compared without regard to case. Null when there is none.
    const FieldDef* field(const QString& fieldName) const {
        for (const FieldDef& each : fields)
            if (each.name.compare(fieldName, Qt::CaseInsensitive) == 0) return &each;
        return nullptr;
    }
};

}  // namespace datafile
