#include "platform/report/BandWriter.h"

namespace report {

namespace {

class LabelRows final : public BandSource {
public:
    LabelRows(std::unique_ptr<BandSource> bands, const LabelSheet& sheet)
        : bands_(std::move(bands)), sheet_(sheet), free_(sheet.skip) {
        more_ = bands_->next(ahead_);
    }

    bool next(Band& band) override {
        if (!more_) return false;
        band.reset();
        band.height = sheet_.down;
        for (int label = 0; label < sheet_.columns; ++label) {
            band.cells.push_back({.share = 1});
            if (free_ > 0)
                --free_;
            else if (more_)
                takeLabel(band.cells.back());
        }
        return true;
    }

private:
    void takeLabel(Cell& cell) {
        do {
            for (const Cell& part : ahead_.cells) {
                if (part.text.isEmpty()) continue;
                cell.style = part.style;
                cell.text += cell.text.isEmpty() ? part.text : QString(u'\n' % part.text);
            }
            more_ = bands_->next(ahead_);
        } while (more_ && ahead_.keepWithPrevious);
    }

    std::unique_ptr<BandSource> bands_;
    LabelSheet sheet_;
    int free_;  ///< labels still to be left out
    Band ahead_;
    bool more_;
};

}  // namespace

std::unique_ptr<BandSource> labelRows(std::unique_ptr<BandSource> bands, const LabelSheet& sheet) {
    return std::make_unique<LabelRows>(std::move(bands), sheet);
}

}  // namespace report
