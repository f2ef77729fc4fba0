#include "platform/report/Band.h"

namespace report {

QStringView Cell::words() const {
    constexpr qsizetype boxLength = 4;  // "[x] "
    const QStringView all(text);
    if (isCheckBox()) return all.mid(boxLength);
    return fillIn > 0 && all.endsWith(blankRule) ? all.chopped(blankRule.size()) : all;
}

}  // namespace report
