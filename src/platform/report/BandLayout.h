#pragma once

#include "platform/report/Band.h"
#include "platform/report/FontBook.h"
#include "platform/report/Page.h"

namespace report {

/// A band with its lines placed. The piece's positions are relative to the paper's left edge and the band's top.
struct LaidBand {
    int level = 0;
    bool header = false;
    double height = 0;
    Page piece{};
};

/// Places the cells of a band side by side between `left` and `left + width` and wraps what is too long for its cell.
/// `fontScale` shrinks the text where space is fixed.
LaidBand layOut(const Band& band, double left, double width, FontBook& fonts, double fontScale = 1);

/// Moves a piece onto a page.
void append(Page& page, const Page& piece, double downBy);

}  // namespace report
