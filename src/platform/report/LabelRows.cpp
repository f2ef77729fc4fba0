#include "platform/report/BandWriter.h"

namespace report {

namespace {

/// Hands out the lines of one label after the other.
class Labels {
public:
    explicit Labels(std::unique_ptr<BandSource> bands) : bands_(std::move(bands)) { more_ = bands_->next(ahead_); }
    bool atEnd() const { return !more_; }
    /// The cells of the next label that hold anything.
    std::vector<Cell> take() {
        std::vector<Cell> lines;
        do {
            for (const Cell& cell : ahead_.cells)
                if (!cell.text.isEmpty()) lines.push_back(cell);
            more_ = bands_->next(ahead_);
        } while (more_ && ahead_.keepWithPrevious);
        return lines;
    }

private:
    std::unique_ptr<BandSource> bands_;
    Band ahead_;
    bool more_;
};

class LabelRows final : public BandSource {
public:
    LabelRows(std::unique_ptr<BandSource> bands, const LabelSheet& sheet)
        : labels_(std::move(bands)), sheet_(sheet), free_(sheet.skip) {}

    bool next(Band& band) override {
        if (labels_.atEnd()) return false;
        band.reset();
        band.height = sheet_.down;
        for (int label = 0; label < sheet_.columns; ++label) {
            Cell& cell = band.cells.emplace_back();
            if (free_ > 0) {
                --free_;
                continue;
            }
            if (labels_.atEnd()) continue;
            for (const Cell& line : labels_.take()) {
                cell.style = line.style;
                cell.text += cell.text.isEmpty() ? line.text : QString(u'\n' % line.text);
            }
        }
        return true;
    }

private:
    Labels labels_;
    LabelSheet sheet_;
    int free_;  ///< labels still to be left out
};

class LabelList final : public BandSource {
public:
    explicit LabelList(std::unique_ptr<BandSource> bands) : labels_(std::move(bands)) {}

    bool next(Band& band) override {
        if (labels_.atEnd()) return false;
        band.reset();
        band.cells = labels_.take();
        return true;
    }

private:
    Labels labels_;
};

}  // namespace

std::unique_ptr<BandSource> labelRows(std::unique_ptr<BandSource> bands, const LabelSheet& sheet) {
    return std::make_unique<LabelRows>(std::move(bands), sheet);
}

std::unique_ptr<BandSource> labelList(std::unique_ptr<BandSource> bands) {
    return std::make_unique<LabelList>(std::move(bands));
}

}  // namespace report
