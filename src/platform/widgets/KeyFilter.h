#pragma once

#include <QChar>
#include <QString>
#include <functional>

/// Says which characters a box accepts. An empty filter accepts all that can be printed.
using KeyFilter = std::function<bool(QChar)>;

enum class LineBreaks { Keep, AsBlanks };

/// The part of a typed or pasted text that a box with this filter and this much room left takes, in its order.
/// Control characters are never taken; where breaks are not kept, a break or tab counts as a blank.
QString admittedPart(const QString& text, const KeyFilter& filter, int room, LineBreaks breaks);
