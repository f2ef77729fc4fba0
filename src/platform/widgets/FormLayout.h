#pragma once

#include <QBoxLayout>
#include <QWidget>

/// The one scale of distances between the parts of a form, in device-independent pixels.
namespace spacing {
inline constexpr int label = 8;    ///< from a label to its field, between boxes of one field
inline constexpr int line = 8;     ///< between two lines of fields
inline constexpr int group = 16;   ///< between frames, between pairs of label and field
inline constexpr int margin = 12;  ///< from an edge to what it holds
}  // namespace spacing

/// Columns side by side while the width allows it, below each other when it does not.
class ColumnRow final : public QWidget {
    Q_OBJECT

public:
    explicit ColumnRow(QWidget* parent);

    /// The widget takes its share of the width by this weight.
    void addColumn(QWidget* column, int weight);
    void setWeight(QWidget* column, int weight);
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int widthSideBySide() const;

    QBoxLayout* layout_;
};
