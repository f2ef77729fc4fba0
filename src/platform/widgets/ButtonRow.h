#pragma once

#include <QWidget>
#include <functional>

class QPushButton;

/// The buttons at the lower right of a window, from left to right.
class ButtonRow final : public QWidget {
public:
    explicit ButtonRow(QWidget* parent);

    /// The button is the row's.
    QPushButton* add(const char* name, const QString& caption, const std::function<void()>& press);
};
