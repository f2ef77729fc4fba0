#include "league/frmDifficultyRating.h"

#include "league/clsDivision.h"
#include "platform/widgets/CommentBox.h"
#include "platform/widgets/FormLayout.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

frmDifficultyRating::frmDifficultyRating(clsDivision& division, const QString& rating, Dialogs& dialogs)
    : division_(division), rating_(rating), dialogs_(dialogs), comments_(new CommentBox) {
    constexpr int commentLength = 255;
    setObjectName(QStringLiteral("frmDifficultyRating"));
    setWindowTitle(tr("Difficulty Rating"));
    auto* name = new QLabel(rating);
    name->setObjectName(QStringLiteral("lblRating"));
    name->setTextFormat(Qt::PlainText);
    comments_->setObjectName(QStringLiteral("txtRatingComments"));
    comments_->setAccessibleName(tr("Comments"));
    comments_->setLimits(FilterTextWide, commentLength);
    auto* fields = new QFormLayout;
    fields->setHorizontalSpacing(spacing::label);
    fields->setVerticalSpacing(spacing::line);
    fields->addRow(tr("Difficulty Rating"), name);
    fields->addRow(tr("Co&mments"), comments_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    const auto add = [&](const char* objectName, const QString& caption, auto press) {
        auto* button = new QPushButton(caption);
        button->setObjectName(QLatin1String(objectName));
        connect(button, &QPushButton::clicked, this, press);
        buttons->addWidget(button);
        return button;
    };
    add("cmdSave", tr("&Save"), [this] { save(); })->setDefault(true);
    add("cmdCancel", tr("Can&cel"), [this] { reject(); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addLayout(fields);
    layout->addLayout(buttons);
    comments_->setFocus();
    resize(420, sizeHint().height());
}

void frmDifficultyRating::save() {
    try {
        division_.AddNewDifficultyRating(rating_, comments_->text());
        accept();
    } catch (const datafile::Error& error) {
        dialogs_.error(tr("The difficulty rating was not added"), error.text());
    }
}
