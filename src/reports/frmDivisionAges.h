#pragma once

#include <QDialog>

class FilteredEdit;

/// Asks for the ages of a division's youngest and oldest players.
class frmDivisionAges final : public QDialog {
    Q_OBJECT

public:
    struct Ages {
        QString minimum;
        QString maximum;
    };

    /// Shows the ages as they are held, one that is no number as none, below the message.
    frmDivisionAges(const QString& division, const Ages& held, const QString& message);

    /// As typed.
    Ages ages() const;

private:
    FilteredEdit* minimum_;
    FilteredEdit* maximum_;
};
