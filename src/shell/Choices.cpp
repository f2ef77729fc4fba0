#include "shell/Choices.h"

#include "shell/Program.h"

QStringList listOf(const Program& program, const QString& query, const QString& column) {
    const auto entries = program.store.database().readList(query, column);
    return QStringList(entries.begin(), entries.end());
}

QStringList stateIds(const Program& program) {
    return listOf(program, QStringLiteral("SELECT [StateId] from tblState ORDER BY [StateId]"),
                  QStringLiteral("StateId"));
}
