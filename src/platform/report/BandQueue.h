#pragma once

#include <deque>
#include <memory>

#include "platform/report/Band.h"

namespace report {

/// Bands that wait to be handed out, with the sub-reports between them. Bands that were handed out lend their storage
/// to later ones.
class BandQueue {
public:
    /// A blank band behind all others. Valid until the next one is added.
    Band& add();
    void add(std::unique_ptr<BandSource> part) { parts_.push_back({count_, std::move(part)}); }
    void dropLast() { --count_; }
    /// Overwrites `band` with the first one. False when nothing waits.
    bool take(Band& band);
    /// How many bands were added since nothing waited.
    size_t size() const { return count_; }
    Band& operator[](size_t index) { return bands_[index]; }
    Band& back() { return bands_[count_ - 1]; }

private:
    struct Part {
        size_t before;  ///< the band it comes before
        std::unique_ptr<BandSource> source;
    };

    std::vector<Band> bands_;
    size_t count_ = 0;
    size_t taken_ = 0;
    std::deque<Part> parts_;
};

}  // namespace report
