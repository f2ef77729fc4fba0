#pragma once

#include <QBoxLayout>
#include <QWidget>
#include <vector>

class QGridLayout;
class QLabel;
class QScrollArea;

/// The one scale of distances between the parts of a form, in device-independent pixels.
namespace spacing {
inline constexpr int label = 8;    ///< from a label to its field, between boxes of one field
inline constexpr int line = 8;     ///< between two lines of fields
inline constexpr int group = 16;   ///< between frames, between pairs of label and field
inline constexpr int margin = 12;  ///< from an edge to what it holds
}  // namespace spacing

/// An area that scrolls what does not fit and otherwise cannot be seen.
QScrollArea* scrollArea(QWidget* content, QWidget* parent = nullptr);

/// Captions and fields in lines of so many pairs; of fewer where the width does not hold them all.
class PairGrid final : public QWidget {
    Q_OBJECT

public:
    PairGrid(int pairs, QWidget* parent);

    int pairs() const { return pairs_; }
    /// Adds a field with its caption, or one without that takes the caption's place too. It spans so many pairs, and
    /// begins a line of its own where asked to.
    void add(QLabel* caption, QWidget* field, int span, bool beginsLine);
    /// The least width for all pairs side by side.
    int fullWidth() const { return widthOf(pairs_); }
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Item {
        QLabel* caption;
        QWidget* field;
        int span;
        bool beginsLine;
    };
    struct Place {
        int line;
        int pair;
        int span;
    };

    std::vector<Place> placesFor(int pairs) const;
    int widthOf(int pairs) const;
    void lay(int pairs);

    QGridLayout* grid_;
    std::vector<Item> items_;
    int pairs_;
    int laid_ = 0;  ///< how many pairs the lines have now
};

/// Columns side by side while the width allows it, below each other when it does not.
class ColumnRow final : public QWidget {
    Q_OBJECT

public:
    explicit ColumnRow(QWidget* parent);

    /// The widget takes its share of the width by this weight.
    void addColumn(QWidget* column, int weight);
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<QWidget*> columns_;
    QBoxLayout* layout_;
};
