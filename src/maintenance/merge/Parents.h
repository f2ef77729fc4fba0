#pragma once

#include "maintenance/merge/MergeSteps.h"

#include <QHash>
#include <map>

/// The row of the local file that has the natural key which a row of the merge file has.
struct LocalId {
    qint64 id = 0;  ///< 0: there is none
    bool live = false;
};

/// Leads the keys of the merge file to those of the local file, for each table that has been merged.
class Parents {
public:
    /// A row of the merge file that was merged or left away. For a team `name` is its name and `division` its
    /// division's key in the merge file.
    void remember(const char* table, qint64 source, LocalId local) { tables_[table].ids.insert(source, local); }
    void rememberTeam(qint64 source, qint64 division, const QString& name);
    void rememberLocalTeam(const QString& key, LocalId local) { localTeams_.insert(key, local); }
    /// Whether some rows of the table could not be merged.
    void setIncomplete(const char* table, bool incomplete) { tables_[table].incomplete = incomplete; }

    /// `sourceDivision` and `localDivision` are those of the row that refers to a team.
    LocalId find(const ForeignKey& column, qint64 source, qint64 sourceDivision, qint64 localDivision) const;
    /// Whether a row that is not found would have been there but for a failure.
    bool isIncomplete(const char* table) const;

private:
    struct Table {
        QHash<qint64, LocalId> ids;
        bool incomplete = false;
    };
    struct Team {
        qint64 division;
        QString name;
    };
    const Table* table(const char* name) const;

    std::map<std::string, Table> tables_;
    QHash<qint64, Team> teams_;
    QHash<QString, LocalId> localTeams_;
};

// Natural keys as texts: two are equal when the engine holds their columns for equal.

/// ASCII letters in lower case, as the file compares texts.
QString folded(QString text);
inline constexpr QChar keySeparator(0x1f);
QString teamKey(qint64 division, const QString& foldedName);
