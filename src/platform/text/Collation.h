#pragma once

#include <QString>
#include <string_view>
#include <vector>

// The order of the entries of a list. Entries are names of their own or columns joined for display, such as
// "Last, First - birth date". They are ordered column by column, without regard to case, accented letters beside
// their plain letters, birth dates as dates.

/// Whether entry `left` stands before entry `right` in a list.
bool listLess(const QString& left, const QString& right);

/// Puts the entries with letters beyond ASCII to their place. The others must already stand in order, as a query with
/// ORDER BY leaves them, and keep it; for n entries of which k move this takes n + k log n steps.
void placeAccented(std::vector<QString>& entries);

/// Compares two names (UTF-8) of one column in the same order: negative, positive, or 0 where they differ in case and
/// accents alone, so that a further column can decide.
int compareNames(std::string_view left, std::string_view right);
