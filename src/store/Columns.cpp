#include "store/Columns.h"

#include "platform/text/Numbers.h"
#include "store/RecordClass.h"

namespace {
const QDate unsetDate(1940, 1, 1);
}

Column::Column(RecordClass* owner, const char* name) : owner_(owner), name_(name) { owner->addColumn(this); }

void Column::touch() {
    assigned_ = true;
    owner_->setDirty(true);
}

void Text::blank() {
    value_ = rule_.kind == TextRule::Kind::NumericElse ? QString::fromLatin1(rule_.otherwise) : QString();
}

void Text::read(const datafile::Value& value) {
    if (const auto* text = std::get_if<QString>(&value))
        value_ = *text;
    else
        value_ = datafile::toText(value);
    const bool replace = (rule_.kind == TextRule::Kind::FilledElse && value_.isEmpty()) ||
                         (rule_.kind == TextRule::Kind::NumericElse && !isNumeric(value_));
    if (replace) value_ = QString::fromLatin1(rule_.otherwise);
}

datafile::Value Text::stored(bool adding) const {
    const bool replace = adding && rule_.kind == TextRule::Kind::NumericElse && !isNumeric(value_);
    return replace ? QString::fromLatin1(rule_.otherwise) : value_.isNull() ? QStringLiteral("") : value_;
}

void Whole::read(const datafile::Value& value) {
    value_ = static_cast<int>(datafile::toNumber(value, rule_.otherwise));
    if (rule_.reading) value_ = rule_.reading(value_);
}

QDate Day::today() const { return RecordClass::clockOf(*this).today(); }

void Day::blank() { value_ = rule_ == NoDate::Today ? today() : rule_ == NoDate::Stamp ? unsetDate : QDate(); }

void Day::read(const datafile::Value& value) {
    value_ = datafile::toDate(value);
    if (value_.isValid() || rule_ == NoDate::Empty) return;
    value_ = rule_ == NoDate::Today ? today() : unsetDate;
}

datafile::Value Day::stored(bool) const {
    if (value_.isValid() || rule_ == NoDate::Empty) return datafile::fromDate(value_);
    return datafile::fromDate(rule_ == NoDate::Today ? today() : unsetDate);
}

QTime TimeOfDay::now() const { return toMinute(RecordClass::clockOf(*this).now().time()); }

void TimeOfDay::read(const datafile::Value& value) {
    value_ = datafile::toTime(value);
    if (!value_.isValid()) value_ = now();
}
