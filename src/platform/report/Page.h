#pragma once

#include <QRectF>
#include <QString>
#include <vector>

namespace report {

/// One line of text on a page, a part of the page's text. Positions in layout units from the paper's upper left corner.
struct TextItem {
    float x = 0;
    float baseline = 0;
    quint32 start = 0;  ///< in the page's text
    quint16 length = 0;
    quint8 font = 0;    ///< number in the paginator's font book
    bool plain = true;  ///< drawn glyph by glyph; else shaped
};

enum class Ink : quint8 { Dark, Light };

struct Rule {
    QRectF area;
    Ink ink = Ink::Dark;
};

/// Positioned lines of text and rules. The texts of all items stand in one string, in reading order, separated by
/// spaces, so that a page can be searched as a whole.
struct Page {
    QString text{};
    std::vector<TextItem> items{};
    std::vector<Rule> rules{};

    QStringView textOf(const TextItem& item) const { return QStringView(text).mid(item.start, item.length); }
};

}  // namespace report
