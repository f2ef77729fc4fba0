#pragma once

#include "ratings/RatingPane.h"

/// One player's skills and the positions the player fills.
class PlayerRatingPane final : public RatingPane {
    Q_OBJECT

public:
    explicit PlayerRatingPane(Program& program);

private:
    Form* buildForm();
    void addPlayerFrame(FormBuilder& builder);
    void addPositionsFrame(FormBuilder& builder);
    std::vector<Flag*> positions();

    bool findPerson(const QString& entry) override;
    int playerId() const override { return id_; }
    int volunteerId() const override { return 0; }
    const Text& personComments() const override { return player().PlayerComments; }
    void blankOtherHalf() override { rating().ResetVolunteerRatings(); }
    void clearMore() override;
    void computeTotals() override { ComputePlayerRatingTotals(); }
    void shown() override;

    void ComputePlayerRatingTotals();

    int id_ = 0;
    QString division_;
    QString team_;
    QString total_;
    QString average_;
};
