#pragma once

#include "league/clsDivision.h"
#include "shell/RecordPane.h"

class FormBuilder;

/// One division at a time: its age band and gender, its umpires, its age cut-off and fee.
class DivisionPane final : public RecordPane {
    Q_OBJECT

public:
    explicit DivisionPane(Program& program);

private:
    Form* buildForm();
    void addDivisionFrame(FormBuilder& builder);
    void addUmpiresFrame(FormBuilder& builder);
    void addRegistrationFrame(FormBuilder& builder);
    QStringList list(const QString& query, const QString& column) const;
    QStringList difficultyRatings() const;
    QStringList officialNames() const;

    bool find(const QString& entry) override { return division_.FindDivRecord(entry, false, true); }
    QString name() const override { return division_.DivName; }
    std::vector<Finding> check() const override;
    bool write() override;
    void makeNew() override;
    QString firstField() const override { return QStringLiteral("txtDivName"); }
    QString deleteQuestion() const override;
    bool mayDelete() override;
    void readChoices() override;
    void shown() override;

    void showDays();
    /// The schedule keeps names of divisions, so it follows a division under its new name.
    void RenameScheduleDivision(const datafile::Database& database, const QString& before, const QString& now);
    void offerNewRating();

    clsDivision division_;
    QString loadedName_;  ///< of the division as it came from the file
};
