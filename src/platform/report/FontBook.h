#pragma once

#include <QFont>
#include <QRawFont>
#include <memory>
#include <vector>

#include "platform/report/TextStyle.h"

namespace report {

/// Layout units: tenths of a point, 720 to the inch. Font sizes are whole numbers in them.
constexpr double unitsPerPoint = 10;
constexpr int unitsPerInch = 720;

/// The families of a typeface, the one that is meant first, then those that stand in for it.
QStringList families(Typeface typeface);

/// A font at one size with the glyphs of plain Latin text. All lengths in layout units.
class Face {
public:
    explicit Face(const TextStyle& style);
    /// The width of a text that can be drawn glyph by glyph; negative for any other text (another alphabet, a
    /// combining mark, a line break, a character that the typeface lacks).
    double plainWidth(QStringView text) const;
    /// Appends glyphs and pen positions of a plain text that starts at `x` on the base line `y`.
    void appendPlain(QStringView text, double x, double y, QVector<quint32>& glyphs, QVector<QPointF>& pens) const;
    const QFont& font() const { return font_; }
    const QRawFont& rawFont() const { return rawFont_; }
    double ascent() const { return ascent_; }
    double descent() const { return descent_; }
    double capHeight() const { return rawFont_.capHeight(); }
    double lineHeight() const { return ascent_ + descent_; }

private:
    struct Glyph {
        quint32 index = 0;
        int advance = 0;  ///< in whole units, so that a pair of letters is always equally far apart: files get smaller
    };
    const Glyph* glyph(QChar character) const;

    QFont font_;
    QRawFont rawFont_;
    std::vector<Glyph> glyphs_;
    double ascent_;
    double descent_;
};

/// The faces of one report, each made on its first use and named by a small number.
class FontBook {
public:
    quint8 idOf(const TextStyle& style);
    const Face& face(quint8 id) const { return *faces_[id]; }

private:
    std::vector<TextStyle> styles_;
    std::vector<std::unique_ptr<Face>> faces_;
};

}  // namespace report
