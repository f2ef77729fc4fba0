#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <memory>

#include "league/clsTeamVolunteer.h"
#include "registration/clsVolunteer.h"

class Form;
class QTabWidget;
class SearchCombo;
struct Program;

/// Who coaches a team and who are its team parents: five positions, one a tab, each with a volunteer to be picked and
/// the shirt size worn in it. The volunteers themselves are only shown.
class TeamStaff final : public QWidget {
    Q_OBJECT

public:
    /// Asks, with a question and its title, whether to save; false when the user stays with the position.
    using Offer = std::function<bool(const QString& question, const QString& title)>;
    TeamStaff(Program& program, Offer offerToSave);

    /// 0 where no team is shown.
    void setTeam(int divisionId, int teamId);
    /// Others may have changed who volunteers.
    void readVolunteers();
    bool isChanged() const;
    /// Writes the changed positions. False, and nothing is written, when one person coaches in two positions; the user
    /// has been told.
    bool SaveCoachingStaff();
    /// Object name of the list in view.
    QString searchName() const;

Q_SIGNALS:
    /// The user picked somebody, or another shirt size.
    void edited();

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Seat {
        explicit Seat(StoreContext& store) : volunteer(store) {}
        const char* position = nullptr;  ///< as it is kept
        QString title;                   ///< of the question when its tab is left
        QString question;
        SearchCombo* list = nullptr;
        Form* form = nullptr;
        clsVolunteer volunteer;  ///< the one that is shown
        QString shown;           ///< entry of that one
        QString shirtSize;
        bool changed = false;
    };

    void addSeat(Seat& seat, const char* position, const QString& caption, const QString& title,
                 const QString& question);
    Form* buildForm(Seat& seat);
    void LoadCoachingStaff();
    void show(Seat& seat, const QString& entry);
    void pick(Seat& seat, const QString& entry);
    void change(Seat& seat);
    void leaveTab(int index);
    /// The warning that two coaches are one person; empty when they are not.
    QString sameCoach() const;

    Program& program_;
    Offer offerToSave_;
    clsTeamVolunteer staff_;
    QTabWidget* tabs_;
    std::array<std::unique_ptr<Seat>, 5> seats_;
    int tab_ = 0;
    int divisionId_ = 0;
    int teamId_ = 0;
};
