#pragma once

#include <map>

#include "platform/settings/Settings.h"

/// Settings that live as long as the test. With `refuses` set nothing can be stored, as in a read-only home.
class MemorySettings final : public Settings {
public:
    bool refuses = false;

    QString read(const QString& section, const QString& key, const QString& otherwise = {}) const override {
        const auto found = values_.find({section, key});
        return found == values_.end() ? otherwise : found->second;
    }
    bool write(const QString& section, const QString& key, const QString& value) override {
        if (!refuses) values_[{section, key}] = value;
        return !refuses;
    }

private:
    std::map<std::pair<QString, QString>, QString> values_;
};
