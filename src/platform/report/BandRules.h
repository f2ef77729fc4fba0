#pragma once

#include "platform/report/Band.h"
#include "platform/report/FontBook.h"
#include "platform/report/Page.h"

namespace report {

constexpr double ruleThickness = 0.6 * unitsPerPoint;

/// The outline of an area.
void addFrame(Page& piece, const QRectF& area);

/// The rules and the shade that belong to a band as a whole.
void addBandRules(Page& piece, const Band& band, const QRectF& area);

/// The frame of one cell, as high as the band unless the cell is placed freely.
void addCellFrame(Page& piece, const Band& band, size_t cell, QRectF frame, const QRectF& area);

}  // namespace report
