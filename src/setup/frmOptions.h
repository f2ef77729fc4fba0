#pragma once

#include "setup/clsOptions.h"

#include <QDialog>

class Form;
class FormBuilder;
class QPushButton;
class QTabWidget;
struct Program;

/// The preferences: the organization, the defaults of new records and the labels of the custom fields. An edit is in
/// the program's globals as it is typed; Save writes it, Cancel takes it back.
class frmOptions final : public QDialog {
    Q_OBJECT

public:
    enum class Page { Organization, Defaults, CustomFields };

    explicit frmOptions(Program& program, Page page = Page::Organization);

    /// The one way out, by Close, Escape or the window's close box: with a valid organization, unsaved work offered.
    void reject() override;

private:
    void addOrganizationPage(FormBuilder& builder);
    void addDefaultsPage(FormBuilder& builder);
    void addDataFileFrame(FormBuilder& builder);
    void addCustomFieldsPage(FormBuilder& builder);
    QWidget* buttonRow();

    bool isChanged() const { return options_.isChanged() || defaults_.isChanged(); }
    void showState();
    void edited(const QString& field);
    void leftField(const QString& field);
    void changePage(int page);
    void browse();
    bool save();
    void cancel();
    void undo(bool organization, bool defaults);
    bool isOrganizationValid();
    bool isYearValid();
    /// Makes the entered data file the one of the next start, if it is another one; false when it cannot be.
    bool takeDataFile();

    Program& program_;
    clsOptions record_;
    OptionsRecord& options_ = record_;
    DefaultsRecord& defaults_ = record_;
    QString path_;  ///< in the box; at first that of the data file in use
    bool restartDue_ = false;
    int page_ = 0;
    Form* form_;
    QTabWidget* tabs_ = nullptr;
    QWidget* buttons_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* close_ = nullptr;
};
