#pragma once

#include <QWidget>
#include <vector>

class ScreenPane;
struct Program;

/// The sizes of the five garments on one page, each with its own list and its own buttons to add and delete.
class UniformPage final : public QWidget {
    Q_OBJECT

public:
    UniformPage(Program& program, const QString& checkTitle);
    const std::vector<ScreenPane*>& panes() const { return panes_; }

private:
    std::vector<ScreenPane*> panes_;
};
