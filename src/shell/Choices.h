#pragma once

#include <QStringList>

struct Program;

// What fields choose from.

/// One column of a query's rows.
QStringList listOf(const Program& program, const QString& query, const QString& column);
QStringList stateIds(const Program& program);
