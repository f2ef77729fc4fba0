#include "ratings/RatingPane.h"

#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/text/Numbers.h"
#include "shell/Program.h"

RatingPane::RatingPane(Program& program, PaneText text)
    : RecordPane(program, std::move(text), Save | Cancel | Refresh), rating_(program.store), player_(program.store) {
    connect(this, &RecordPane::stateChanged, this, [this] {
        if (isEditing() || !std::exchange(saved_, false)) return;
        if (isVisible()) focusSearch();
    });
}

datafile::Database RatingPane::database() const { return program().store.database(); }

/// The live words in the order of their values.
QStringList RatingPane::words() const {
    datafile::Recordset scale =
        database().openRecordset("SELECT * from tblRating WHERE [DeletedFlag] = False ORDER BY [RatingValue] ASC");
    std::vector<std::pair<double, QString>> words;
    for (; !scale.eof(); scale.moveNext())
        words.emplace_back(toNumber(scale.text("RatingValue")).value_or(0), scale.text("RatingText"));
    std::stable_sort(words.begin(), words.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    QStringList texts;
    for (const auto& [value, word] : words) texts << word;
    return texts;
}

void RatingPane::readChoices() {
    const QStringList entries = words();
    for (const auto& grade : grades_) form().findChild<ChoiceBox*>(grade->name)->setEntries(entries);
}

void RatingPane::addGrade(FormBuilder& builder, const QString& name, const QString& caption, Whole& column) {
    grades_.push_back(std::make_unique<Grade>(Grade{name, &column}));
    Grade& grade = *grades_.back();
    constexpr int wordLength = 50;
    builder.choice(name, caption,
                   Binding([&grade] { return grade.word; },
                           [this, &grade](const QString& word) { choose(grade, word); }, wordLength),
                   words(), ChoiceBox::ListOnly);
}

void RatingPane::addComments(FormBuilder& builder, const QString& name, int length) {
    builder.comments(name, {},
                     Binding([this] { return comments_; },
                             [this](const QString& text) {
                                 comments_ = text;
                                 commentsTyped_ = true;
                                 rating_.SetIsARDirty(true);
                             },
                             length),
                     FilterTextWide);
}

void RatingPane::choose(Grade& grade, const QString& word) {
    grade.word = word;
    grade.value = rating_.FindRatingValue(word);
    *grade.grade = grade.value;
    computeTotals();
}

int RatingPane::valueOf(const Whole& column) const {
    for (const auto& grade : grades_)
        if (grade->grade == &column) return grade->value;
    return 0;
}

bool RatingPane::findRow(bool load) {
    return playerId() != 0 ? rating_.FindARPlayerRecord(playerId(), false, load)
                           : rating_.FindARVolunteerRecord(volunteerId(), false, load);
}

bool RatingPane::find(const QString& entry) {
    if (!findPerson(entry)) return false;
    entry_ = entry;
    rating_.requery();  // the other pane may have added the first row
    const bool rated = findRow(true);
    if (!rated) rating_.blank();
    const bool hasScale = !database().openRecordset("tblRating").eof();
    for (const auto& grade : grades_) {
        grade->word = rated && hasScale ? rating_.FindRatingText(*grade->grade) : QString();
        grade->value = rating_.FindRatingValue(grade->word);
    }
    comments_ = personComments();
    return true;
}

void RatingPane::shown() {
    if (!hasRecord()) {
        entry_.clear();
        comments_.clear();
        for (const auto& grade : grades_) *grade = {grade->name, grade->grade};
    }
    commentsTyped_ = false;
    computeTotals();
    form().refresh();
}

bool RatingPane::write() {
    const bool rated = findRow(false);
    rating_.SetIsARNew(!rated);
    if (rated)
        rating_.ARStamps.DeletedFlag = false;  // that of a person who had left and came back
    else
        blankOtherHalf();
    rating_.PlayerId = playerId();
    rating_.VolId = volunteerId();
    if (commentsTyped_) (playerId() != 0 ? rating_.PlayerComments : rating_.VolunteerComments) = comments_;
    datafile::Transaction transaction(database());
    rating_.SaveARRecord();
    transaction.commit();
    return saved_ = !rating_.isChanged();
}

void RatingPane::clear() {
    for (const auto& grade : grades_) choose(*grade, {});
    comments_.clear();
    commentsTyped_ = true;
    clearMore();
    beginEditing();
    form().refresh();
}
