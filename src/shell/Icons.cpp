#include "shell/Icons.h"

/// The drawings stand in a static library and have to be asked for, from outside any namespace.
static void loadDrawings() { Q_INIT_RESOURCE(shell); }

QIcon shellIcon(const QString& name) {
    loadDrawings();
    return QIcon(":/shell/" + name + ".svg");
}
