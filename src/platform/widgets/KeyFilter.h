#pragma once

#include <QChar>
#include <QString>
#include <functional>

#include "platform/text/KeyFilters.h"

/// Says which characters a box accepts: one of the program's key sets, or any rule. An empty filter accepts all that
/// can be printed.
struct KeyFilter : std::function<bool(QChar)> {
    using function::function;
    KeyFilter(KeySet keys) : function([keys](QChar character) { return admits(keys, character); }) {}
};

enum class LineBreaks { Keep, AsBlanks };

/// The part of a typed or pasted text that a box with this filter and this much room left takes, in its order.
/// Control characters are never taken; where breaks are not kept, a break or tab counts as a blank.
QString admittedPart(const QString& text, const KeyFilter& filter, int room, LineBreaks breaks);
