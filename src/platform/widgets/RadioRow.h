#pragma once

#include <QStringList>
#include <QWidget>

class QButtonGroup;

/// A few answers side by side, of which one is chosen, such as Yes (index 0) and No (index 1). The buttons' object
/// names are the row's followed by their index.
class RadioRow final : public QWidget {
    Q_OBJECT

public:
    RadioRow(const QString& objectName, const QString& accessibleName, const QStringList& answers,
             QWidget* parent = nullptr);

    /// An index that is none of the answers leaves the question open.
    void setIndex(int index);
    /// -1 while the question is open.
    int index() const;

Q_SIGNALS:
    /// The user changed the answer.
    void edited(int index);

private:
    /// Tab arrives at the present answer; the arrow keys go to the others.
    void takeFocusAtAnswer();

    QButtonGroup* buttons_;
};
