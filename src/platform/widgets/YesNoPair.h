#pragma once

#include <QWidget>

class QRadioButton;

/// The answers Yes (index 0) and No (index 1) side by side. The buttons' object names are the pair's followed by
/// "0" and "1".
class YesNoPair final : public QWidget {
    Q_OBJECT

public:
    YesNoPair(const QString& objectName, const QString& accessibleName, QWidget* parent = nullptr);

    void setYes(bool yes);
    bool isYes() const;

Q_SIGNALS:
    /// The user changed the answer.
    void edited(bool yes);

private:
    /// Tab arrives at the present answer; the arrow keys go to the other.
    void takeFocusAtAnswer();

    QRadioButton* yes_;
    QRadioButton* no_;
};
