#pragma once

#include <QWidget>

/// The program's mark beside its name and one line below it: the head of the navigator, the splash and the about box.
class ProductHeading final : public QWidget {
    Q_OBJECT

public:
    explicit ProductHeading(const QString& lineBelow);
};
