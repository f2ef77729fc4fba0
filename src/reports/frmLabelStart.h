#pragma once

#include <QDialog>

/// Asks for the label of the sheet on which printing begins. The buttons lie as the labels do.
class frmLabelStart final : public QDialog {
    Q_OBJECT

public:
    frmLabelStart();

    /// How many labels stand before the one chosen.
    int skipped() const { return skipped_; }

private:
    int skipped_ = 0;
};
