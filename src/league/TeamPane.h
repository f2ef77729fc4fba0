#pragma once

#include "league/clsTeam.h"
#include "shell/RecordPane.h"

class FormBuilder;
class PlayerAssignments;
class SearchRow;
class TeamStaff;

/// One team of the chosen division at a time: what it is called and wears, who leads it, who plays on it.
class TeamPane final : public RecordPane {
    Q_OBJECT

public:
    explicit TeamPane(Program& program);
    /// Only a division has teams.
    bool canAdd() const override { return divisionId_ != 0; }
    bool isChanged() const override;

private:
    Form* buildForm();
    void addInformationTab(FormBuilder& builder);
    SearchRow* makeDivisionRow();
    /// The divisions and the sponsors; the chosen division stays, under whatever name.
    void LoadTeamDataControls();
    void chooseDivision(const QString& name);
    void changeDivision(int index);
    void chooseSponsor(const QString& name);
    QStringList sponsors() const;
    datafile::Database database() const;

    std::vector<QString> readEntries() const override;
    bool find(const QString& entry) override;
    QString name() const override { return team_.TeamName; }
    std::vector<Finding> check() const override;
    bool write() override;
    void makeNew() override;
    QString firstField() const override { return QStringLiteral("txtTeamName"); }
    QString deleteQuestion() const override;
    bool mayDelete() override;
    void readChoices() override;
    void shown() override;

    bool writeTeam();
    /// The schedule keeps names of teams, so it follows a team under its new name, within the division.
    void RenameScheduleTeam(const datafile::Database& file, const QString& before, const QString& now) const;
    bool refuseDelete(const QString& why);
    void leaveSubTab();

    clsTeam team_;
    SearchRow* divisions_;
    TeamStaff* staff_;
    PlayerAssignments* assignments_;
    int divisionId_ = 0;  ///< of the chosen division; 0: there is none
    QString divisionName_;
    QString sponsorName_;
    QString loadedName_;  ///< of the team as it came from the file
};
