#include "platform/widgets/KeyFilter.h"

#include <algorithm>

QString admittedPart(const QString& text, const KeyFilter& filter, int room, LineBreaks breaks) {
    QString part;
    part.reserve(std::min<qsizetype>(text.size(), std::max(room, 0)));
    for (QChar character : text.normalized(QString::NormalizationForm_C)) {
        if (part.size() >= room) break;
        const bool isBreak = character == u'\n' || character == u'\r' || character == QChar::ParagraphSeparator ||
                             character == QChar::LineSeparator;
        if (isBreak && breaks == LineBreaks::Keep) {
            part += u'\n';
            continue;
        }
        if (isBreak || character == u'\t') character = u' ';
        const bool printable = character.isPrint() || character.isSurrogate();
        if (printable && (!filter || filter(character))) part += character;
    }
    if (!part.isEmpty() && part.back().isHighSurrogate()) part.chop(1);
    return part;
}
