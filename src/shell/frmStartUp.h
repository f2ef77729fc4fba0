#pragma once

#include <functional>
#include <vector>

#include "shell/Screen.h"

/// The navigator: a panel of large buttons, one for each main screen, besides backup, about and exit. It makes way
/// for the screen that is picked.
class frmStartUp final : public Screen {
    Q_OBJECT

public:
    explicit frmStartUp(Program& program);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Tile {
        QString button;
        QStringList labels;  ///< object names, one a line of the text
        QString icon;
        QString text;  ///< with an access key; lines separated by "\n"
        QString hint;
        std::function<void()> action;
    };

    std::vector<Tile> tiles();
    QWidget* tile(const Tile& tile);
    void handOver(const QString& name);
};
