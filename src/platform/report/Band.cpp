#include "platform/report/Band.h"

namespace report {

QStringView Cell::words() const {
    constexpr qsizetype boxLength = 4;  // "[x] "
    const QStringView all(text);
    if (isCheckBox()) return all.mid(boxLength);
    return fillIn > 0 && all.endsWith(blankRule) ? all.chopped(blankRule.size()) : all;
}

QString Cell::plainText() const {
    if (isCheckBox()) return QChar(isChecked() ? 0x2612 : 0x2610) % u' ' % words();
    if (fillIn < 2) return text;
    const QString rule = QString(blankRule).repeated(5);
    return words() % rule % QString(u'\n' % rule).repeated(fillIn - 1);
}

}  // namespace report
