#pragma once

namespace report {

/// The typeface of a layout: lists in "Comic Sans MS", forms in "Arial", labels in "Times New Roman".
enum class Typeface { List, Form, Label };

struct TextStyle {
    Typeface typeface = Typeface::List;
    double points = 9;
    bool bold = false;
    bool italic = false;
    bool operator==(const TextStyle&) const = default;
};

}  // namespace report
