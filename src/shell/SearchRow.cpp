#include "shell/SearchRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "platform/datafile/Database.h"
#include "platform/text/Collation.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Icons.h"
#include "shell/ScreenPane.h"
#include "store/RecordClass.h"

SearchRow::SearchRow(const PaneText& text, QWidget* parent) : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::label);
    auto* caption = new QLabel(text.searchCaption, this);
    list_ = new SearchCombo(QString(text.searchCaption).remove(u'&'), this);
    list_->setObjectName(text.searchName);
    list_->setShownCharacters(text.searchCharacters);
    caption->setBuddy(list_);
    layout->addWidget(caption);
    layout->addWidget(list_);
    const struct {
        int code;
        const char* icon;
        QString tip;
    } buttons[] = {{MoveFirst, "move-first", tr("First record")},
                   {MovePrevious, "move-previous", tr("Previous record")},
                   {MoveNext, "move-next", tr("Next record")},
                   {MoveLast, "move-last", tr("Last record")}};
    for (const auto& each : buttons) {
        if (text.moveName.isEmpty()) break;
        auto* button = new QToolButton(this);
        button->setObjectName(text.moveName + QString::number(moves_.size()));
        button->setIcon(shellIcon(QLatin1String(each.icon)));
        button->setToolTip(each.tip);
        button->setAccessibleName(each.tip);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, [this, code = each.code] { Q_EMIT moveWanted(code); });
        layout->addWidget(button);
        moves_.push_back(button);
    }
    layout->addStretch(1);
}

void SearchRow::read(const datafile::Database& database, const QString& query) {
    std::vector<QString> entries = database.readList(query, QStringLiteral("Name"));
    placeAccented(entries);
    list_->setEntries(std::move(entries));
}

void SearchRow::setLocked(bool locked) {
    list_->setEnabled(!locked);
    for (QToolButton* button : moves_) button->setEnabled(!locked && list_->entryCount() > 0);
}

std::optional<int> SearchRow::destinationOf(int move) {
    const int last = list_->entryCount() - 1;
    const int current = list_->currentIndex();
    if (last < 0) return {};
    Q_EMIT said({});
    if (move == MoveFirst) return 0;
    if (move == MoveLast) return last;
    const bool back = move == MovePrevious;
    if (back ? current > 0 : current < last) return back ? current - 1 : current + 1;
    Q_EMIT said(back ? tr("First Record") : tr("Last Record"));
    return {};
}
