#include "platform/datafile/TableSql.h"

#include <QRegularExpression>
#include <array>
#include <utility>

namespace datafile::sql {

namespace {

constexpr std::array typeNames{std::pair{ColumnType::Long, "INTEGER"}, std::pair{ColumnType::Integer, "SMALLINT"},
                               std::pair{ColumnType::Boolean, "BOOLEAN"}, std::pair{ColumnType::Date, "DATE TEXT"},
                               std::pair{ColumnType::Double, "DOUBLE"}};

QString notEmptyCheck(const QString& name) { return QStringLiteral("CHECK(%1 <> '')").arg(identifier(name)); }

}  // namespace

QString identifier(const QString& name) {
    QString escaped = name;
    escaped.replace(u'"', QStringLiteral("\"\""));
    return u'"' + escaped + u'"';
}

QString literal(const QString& text) {
    QString escaped = text;
    escaped.replace(u'\'', QStringLiteral("''"));
    return u'\'' + escaped + u'\'';
}

QString column(const FieldDef& field) {
    const QString name = identifier(field.name);
    if (field.type == ColumnType::AutoKey) return name + QStringLiteral(" INTEGER PRIMARY KEY AUTOINCREMENT");
    QString text = name;
    if (field.type == ColumnType::Text) {
        text += QStringLiteral(" TEXT(%1) COLLATE NOCASE CONSTRAINT %2 CHECK(length(%3) <= %1)")
                    .arg(field.size)
                    .arg(identifier(QStringLiteral("%1:%2").arg(field.name).arg(field.size)), name);
        if (!field.allowZeroLength)
            text += QStringLiteral(" CONSTRAINT %1 %2")
                        .arg(identifier(field.name + QStringLiteral(":empty")), notEmptyCheck(field.name));
    } else {
        for (const auto& [type, typeName] : typeNames)
            if (type == field.type) text += u' ' + QLatin1String(typeName);
    }
    const bool flag = field.type == ColumnType::Boolean;
    if (field.required || flag) text += QStringLiteral(" NOT NULL");
    if (field.hasDefault || flag) {
        const bool quotes = field.type == ColumnType::Text || field.type == ColumnType::Date;
        const QString value = field.defaultValue.isEmpty() && flag ? QStringLiteral("0") : field.defaultValue;
        text += QStringLiteral(" DEFAULT ") + (quotes ? literal(value) : value);
    }
    return text;
}

QString createTable(const TableDef& table) {
    QStringList parts;
    for (const FieldDef& field : table.fields) parts << column(field);
    for (const RelationDef& relation : table.relations)
        parts << QStringLiteral("CONSTRAINT %1 FOREIGN KEY(%2) REFERENCES %3(%4)")
                     .arg(identifier(relation.name), identifier(relation.foreignField), identifier(relation.table),
                          identifier(relation.field));
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(identifier(table.name), parts.join(QStringLiteral(", ")));
}

QString indexName(const QString& table, const QString& index) { return table + u'.' + index; }

QString createIndex(const QString& table, const IndexDef& index) {
    QStringList fields;
    for (const QString& field : index.fields) fields << identifier(field);
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(index.unique || index.primary ? QStringLiteral("UNIQUE ") : QString(),
             identifier(indexName(table, index.name)), identifier(table), fields.join(QStringLiteral(", ")));
}

FieldDef readColumn(const QString& name, const QString& declaredType, bool notNull, const QString& defaultSql,
                    bool isKey, const QString& tableSql) {
    FieldDef field{.name = name};
    const QString type = declaredType.toUpper();
    field.required = notNull && type != QLatin1String("BOOLEAN");
    if (isKey && tableSql.contains(identifier(name) + QStringLiteral(" INTEGER PRIMARY KEY"))) {
        field.type = ColumnType::AutoKey;
        return field;
    }
    if (type.startsWith(QLatin1String("TEXT"))) {
        field.type = ColumnType::Text;
        field.size = type.mid(5).chopped(type.endsWith(u')') ? 1 : 0).toInt();
        field.allowZeroLength = !tableSql.contains(notEmptyCheck(name));
    } else {
        for (const auto& [each, typeName] : typeNames)
            if (type == QLatin1String(typeName)) field.type = each;
    }
    if (!defaultSql.isNull()) {
        field.hasDefault = true;
        field.defaultValue = defaultSql;
        if (defaultSql.startsWith(u'\''))
            field.defaultValue = defaultSql.mid(1).chopped(1).replace(QStringLiteral("''"), QStringLiteral("'"));
        if (field.type == ColumnType::Boolean && field.defaultValue == u'0')
            field.hasDefault = false, field.defaultValue.clear();
    }
    return field;
}

QList<RelationDef> readRelations(const QString& table, const QString& tableSql) {
    const QRegularExpression pattern(QStringLiteral(
        "CONSTRAINT \"([^\"]+)\" FOREIGN KEY\\(\"([^\"]+)\"\\) REFERENCES \"([^\"]+)\"\\(\"([^\"]+)\"\\)"));
    QList<RelationDef> relations;
    for (auto matches = pattern.globalMatch(tableSql); matches.hasNext();) {
        const auto match = matches.next();
        relations << RelationDef{match.captured(1), match.captured(3), match.captured(4), table, match.captured(2)};
    }
    return relations;
}

}  // namespace datafile::sql
