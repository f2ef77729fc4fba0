#pragma once

#include <QIcon>

/// The drawing of that name from the program's own icons.
QIcon shellIcon(const QString& name);
