#pragma once

#include "platform/settings/Settings.h"

/// Settings in one INI file, which is made (with its folder) by the first write.
class FileSettings final : public Settings {
public:
    explicit FileSettings(QString path) : path_(std::move(path)) {}
    QString read(const QString& section, const QString& key, const QString& otherwise = {}) const override;
    bool write(const QString& section, const QString& key, const QString& value) override;

private:
    QString path_;
};
