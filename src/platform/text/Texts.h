#pragma once

#include <QString>
#include <optional>
#include <span>

// Small rules about the texts of boxes and lists.

/// The text on the left of a column of this many places; a longer text stays whole.
inline QString leftAligned(const QString& text, int places) { return text.leftJustified(places); }

/// A zip text with its dash. Five characters stay. Of six to ten the sixth becomes "-" and every other that is no
/// digit "0". Any other length stays.
QString FormatZipText(const QString& zip);

/// The box that a refused entry brings up.
struct EntryFault {
    QString title;
    QString text;
};
/// What is wrong with a season year as typed; nothing for the years 1980 to 2050.
std::optional<EntryFault> checkYearEntry(const QString& year);

/// Type-ahead: the first entry that begins with what was typed, without regard to case, or -1. Nothing typed finds
/// nothing. The caller selects that entry's text from the typed length to its end.
int CompleteComboText(const QString& typed, std::span<const QString> entries);
