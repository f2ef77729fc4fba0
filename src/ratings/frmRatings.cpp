#include "ratings/frmRatings.h"

#include <QPushButton>
#include <QTabWidget>

#include "ratings/PlayerRatingPane.h"
#include "ratings/VolunteerRatingPane.h"

frmRatings::frmRatings(Program& program) : RecordScreen(program, QStringLiteral("frmRatings"), {980, 680}) {
    addPane(new PlayerRatingPane(program));
    addPane(new VolunteerRatingPane(program));
    clear_ = addButton(QStringLiteral("cmdRatingsClear"), tr("Clear Ratin&gs"),
                       [this] { static_cast<RatingPane*>(pane())->clear(); });
    for (RatingPane* each : findChildren<RatingPane*>())
        connect(each, &RecordPane::stateChanged, this, &frmRatings::showClear);
    connect(&tabs(), &QTabWidget::currentChanged, this, &frmRatings::showClear);
    showClear();
}

void frmRatings::showClear() { clear_->setEnabled(pane()->hasRecord()); }
