#pragma once

#include <QDialog>

#include "reports/ReportInput.h"

class FilteredEdit;

/// Asks for the ages of a division's youngest and oldest players.
class frmDivisionAges final : public QDialog {
    Q_OBJECT

public:
    /// Shows the ages as they are held, one that is no number as none, below the message.
    frmDivisionAges(const QString& division, const AgeLimits& held, const QString& message);

    /// As typed.
    AgeLimits ages() const;

private:
    FilteredEdit* minimum_;
    FilteredEdit* maximum_;
};
