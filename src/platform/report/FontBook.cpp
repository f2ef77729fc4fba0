#include "platform/report/FontBook.h"

#include <algorithm>

namespace report {

namespace {

// Plain text: Latin with all its accented letters, and the general punctuation.
constexpr char16_t latinEnd = 0x250;
constexpr char16_t punctuationStart = 0x2010;
constexpr char16_t punctuationEnd = 0x2027;
constexpr size_t glyphCount = latinEnd + (punctuationEnd - punctuationStart);

QFont makeFont(const TextStyle& style) {
    QFont font(families(style.typeface));
    font.setPixelSize(std::max(1, qRound(style.points * unitsPerPoint)));
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);  // so that shaped lines and glyph runs are equally wide
    return font;
}

char16_t characterAt(size_t slot) { return char16_t(slot < latinEnd ? slot : punctuationStart + (slot - latinEnd)); }

bool isDrawable(char16_t character) {
    return character >= 0x20 && (character < 0x7f || character >= 0xa0) && character != 0xad;
}

}  // namespace

QStringList families(Typeface typeface) {
    switch (typeface) {
        case Typeface::List: return {"Comic Sans MS", "Comic Neue", "Liberation Sans", "DejaVu Sans"};
        case Typeface::Form: return {"Arial", "Liberation Sans", "DejaVu Sans"};
        case Typeface::Label: return {"Times New Roman", "Liberation Serif", "DejaVu Serif"};
    }
    return {};
}

Face::Face(const TextStyle& style) : font_(makeFont(style)), rawFont_(QRawFont::fromFont(font_)), glyphs_(glyphCount) {
    QString characters(qsizetype(glyphCount), u' ');
    for (size_t slot = 0; slot < glyphCount; ++slot) characters[qsizetype(slot)] = characterAt(slot);
    const QVector<quint32> indexes = rawFont_.glyphIndexesForString(characters);
    const QVector<QPointF> advances = rawFont_.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
    for (size_t slot = 0; slot < glyphCount; ++slot)
        if (isDrawable(characterAt(slot)))
            glyphs_[slot] = {indexes[qsizetype(slot)], qRound(advances[qsizetype(slot)].x())};
    ascent_ = rawFont_.ascent();
    descent_ = rawFont_.descent();
}

const Face::Glyph* Face::glyph(QChar character) const {
    const char16_t code = character.unicode();
    size_t slot = code;
    if (code >= latinEnd) {
        if (code < punctuationStart || code >= punctuationEnd) return nullptr;
        slot = latinEnd + (code - punctuationStart);
    }
    return glyphs_[slot].index == 0 ? nullptr : &glyphs_[slot];
}

double Face::plainWidth(QStringView text) const {
    double width = 0;
    for (const QChar character : text) {
        const Glyph* found = glyph(character);
        if (!found) return -1;
        width += found->advance;
    }
    return width;
}

void Face::appendPlain(QStringView text, double x, double y, QVector<quint32>& glyphs, QVector<QPointF>& pens) const {
    x = qRound(x);
    for (const QChar character : text) {
        const Glyph* found = glyph(character);
        if (!found) continue;
        glyphs.append(found->index);
        pens.append(QPointF(x, y));
        x += found->advance;
    }
}

quint8 FontBook::idOf(const TextStyle& style) {
    const auto found = std::find(styles_.begin(), styles_.end(), style);
    if (found != styles_.end()) return quint8(found - styles_.begin());
    styles_.push_back(style);
    faces_.push_back(std::make_unique<Face>(style));
    return quint8(faces_.size() - 1);
}

}  // namespace report
