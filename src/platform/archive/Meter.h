#pragma once

#include "platform/archive/Archive.h"

namespace archive {

/// Passes on how far work has come, once for each percent.
class Meter {
public:
    explicit Meter(const Progress& progress) : progress_(progress) {}

    void show(double part) {
        const int percent = static_cast<int>(part * 100);
        if (!progress_ || percent <= shown_) return;
        shown_ = percent;
        progress_(percent);
    }

private:
    const Progress& progress_;
    int shown_ = -1;
};

}  // namespace archive
