#pragma once

#include <QVersionNumber>

/// The program's own version: major, minor, revision.
inline QVersionNumber programVersion() { return QVersionNumber::fromString(QLatin1String(KESTRELMOOR_VERSION)); }
