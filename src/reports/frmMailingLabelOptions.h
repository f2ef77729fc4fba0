#pragma once

#include <QDialog>

#include "reports/LabelOptions.h"

class Dialogs;
class FilteredEdit;
class QButtonGroup;
class QGroupBox;

/// Asks who gets a mailing label.
class frmMailingLabelOptions final : public QDialog {
    Q_OBJECT

public:
    /// Of whom the labels are (MailingLabels::People), and what is chosen so far.
    frmMailingLabelOptions(int people, const LabelOptions& held, Dialogs& dialogs);

    LabelOptions options() const;

    void accept() override;

private:
    static QStringList captions(int people);
    QWidget* makeChoices(const QStringList& captions);
    QGroupBox* makeAges(const LabelOptions& held);
    bool isAgeRange() const;
    bool refuse(FilteredEdit* field, const QString& title, const QString& text);
    bool isValid();

    Dialogs& dialogs_;
    LabelOptions held_;
    QButtonGroup* choices_;
    QButtonGroup* status_;
    FilteredEdit* lower_ = nullptr;
    FilteredEdit* upper_ = nullptr;
    QGroupBox* ages_ = nullptr;
};
