#pragma once

#include "ratings/clsAbilityRating.h"
#include "registration/clsRegistration.h"
#include "shell/RecordPane.h"

class FormBuilder;

/// Where people are graded. Its entries are people; the row with the grades is made when a grade is saved first. One
/// row serves a player in both halves, as a player and as an umpire. Grades are chosen as words of the scale and kept
/// as its values.
class RatingPane : public RecordPane {
    Q_OBJECT

public:
    RatingPane(Program& program, PaneText text);
    /// Takes the grades and the comments off the form; nothing is written.
    void clear();

protected:
    clsAbilityRating& rating() { return rating_; }
    clsRegistration& player() { return player_; }
    const clsRegistration& player() const { return player_; }

    /// Finds the person of a list entry.
    virtual bool findPerson(const QString& entry) = 0;
    /// The id of that person: of a player, or else of a volunteer, the other one 0.
    virtual int playerId() const = 0;
    virtual int volunteerId() const = 0;
    virtual const Text& personComments() const = 0;
    /// Blanks the half of a new row that this pane does not show.
    virtual void blankOtherHalf() = 0;
    virtual void clearMore() {}
    /// A grade changed, or all of them.
    virtual void computeTotals() = 0;

    void addGrade(FormBuilder& builder, const QString& name, const QString& caption, Whole& grade);
    void addComments(FormBuilder& builder, const QString& name, int length);
    /// The value of the word that the list of this grade shows.
    int valueOf(const Whole& grade) const;

    bool find(const QString& entry) final;
    QString name() const final { return entry_; }
    std::vector<Finding> check() const final { return {}; }
    bool write() final;
    QString firstField() const final { return {}; }
    void shown() override;
    void readChoices() override;

private:
    struct Grade {
        QString name;
        Whole* grade;
        QString word{};
        int value = 0;  ///< of the word
    };
    QStringList words() const;
    void choose(Grade& grade, const QString& word);
    bool findRow(bool load);

    clsAbilityRating rating_;
    clsRegistration player_;
    std::vector<std::unique_ptr<Grade>> grades_;
    QString entry_;
    QString comments_;
    bool commentsTyped_ = false;
};
