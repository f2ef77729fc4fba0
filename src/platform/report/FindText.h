#pragma once

#include "platform/report/Paginator.h"

namespace report {

/// A stretch of a page's text.
struct TextPlace {
    int page = 0;
    qsizetype start = -1;  ///< -1: before the page's first character
    qsizetype length = 0;
};

/// The next place of a text after `from`, or the one before it, going round at the end. Upper and lower case count
/// alike. Lays out the pages it has to look at.
std::optional<TextPlace> findText(Paginator& pages, const QString& text, const TextPlace& from, bool backwards = false);

}  // namespace report
