#include "platform/report/BandQueue.h"

namespace report {

Band& BandQueue::add() {
    if (count_ == bands_.size()) bands_.emplace_back();
    Band& band = bands_[count_++];
    band.reset();
    return band;
}

bool BandQueue::take(Band& band) {
    while (!parts_.empty() && parts_.front().before == taken_) {
        if (parts_.front().source->next(band)) return true;
        parts_.pop_front();
    }
    if (taken_ < count_) {
        std::swap(band, bands_[taken_++]);
        return true;
    }
    taken_ = count_ = 0;
    return false;
}

}  // namespace report
