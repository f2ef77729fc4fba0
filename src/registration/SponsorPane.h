#pragma once

#include "registration/clsSponsors.h"
#include "shell/RecordPane.h"

class FormBuilder;
class Grid;

/// The four digits that a typed pledge year stands for; none is this year. What would not fit stays as typed.
QString fullPledgeYear(const QString& typed, int thisYear);

/// One sponsor at a time, with its current pledge and those of earlier years.
class SponsorPane final : public RecordPane {
    Q_OBJECT

public:
    explicit SponsorPane(Program& program);

    /// Moves the current pledge to the previous ones, which is written at once, and begins the next one.
    void addPledge();

private:
    Form* buildForm();
    void addInformationTab(FormBuilder& builder);
    void addPledgeTab(FormBuilder& builder);
    Grid* makeGrid();

    bool find(const QString& entry) override;
    QString name() const override { return sponsor_.SponsorName; }
    std::vector<Finding> check() const override;
    bool write() override;
    void makeNew() override { sponsor_.NewSponsorRecord(); }
    QString firstField() const override { return QStringLiteral("txtSponsorName"); }
    QString deleteQuestion() const override;
    void erase() override { sponsor_.DeleteSponsorRecord(sponsor_.SponsorName); }
    void shown() override { LoadPreviousPledgeList(); }

    void completeYear();
    bool archivePledge();
    void LoadPreviousPledgeList();
    void offerPledgeMenu(const QPoint& global);
    void deletePledges();

    clsSponsors sponsor_;
    Grid* pledges_ = nullptr;
};
