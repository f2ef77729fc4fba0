#pragma once

#include <QString>

/// Per-user settings: texts by section and key under the application's title. What belongs to the league is in
/// the data file; only what belongs to this user's desktop stands here.
class Settings {
public:
    virtual ~Settings() = default;
    virtual QString read(const QString& section, const QString& key, const QString& otherwise = {}) const = 0;
    /// Stored before the call returns. False when it could not be stored (a full disk, a read-only home).
    virtual bool write(const QString& section, const QString& key, const QString& value) = 0;
};
