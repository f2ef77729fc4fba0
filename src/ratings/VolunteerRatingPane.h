#pragma once

#include "ratings/RatingPane.h"
#include "registration/clsVolunteer.h"

/// One coach or umpire: a volunteer, or a player who umpires.
class VolunteerRatingPane final : public RatingPane {
    Q_OBJECT

public:
    explicit VolunteerRatingPane(Program& program);

private:
    enum class Kind { None, Player, Volunteer };

    Form* buildForm();
    /// Players who umpire, then all volunteers, by way of the work table.
    std::vector<QString> LoadUmpireSearchList() const;

    std::vector<QString> readEntries() const override { return LoadUmpireSearchList(); }
    bool findPerson(const QString& entry) override;
    int playerId() const override { return kind_ == Kind::Player ? id_ : 0; }
    int volunteerId() const override { return kind_ == Kind::Volunteer ? id_ : 0; }
    const Text& personComments() const override;
    void blankOtherHalf() override { rating().ResetPlayerRatings(); }
    void computeTotals() override { ComputeVolunteerRatingTotals(); }
    void shown() override;

    void ComputeVolunteerRatingTotals();

    clsVolunteer volunteer_;
    Kind kind_ = Kind::None;
    int id_ = 0;
    QString totalCoach_;
    QString totalUmpire_;
};
