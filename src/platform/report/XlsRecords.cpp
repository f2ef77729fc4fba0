#include "platform/report/XlsRecords.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace report {

namespace {

constexpr qsizetype longestText = 32767;

/// Every character fits one byte.
bool isNarrow(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x100; });
}

void addCharacters(QByteArray& out, QStringView text, bool narrow) {
    for (const QChar character : text) {
        out += char(character.unicode() & 0xff);
        if (!narrow) out += char(character.unicode() >> 8);
    }
}

}  // namespace

XlsRecords& XlsRecords::begin(Kind kind) {
    start_ = out_.size();
    return u16(kind).u16(0);
}

void XlsRecords::end() { qToLittleEndian<quint16>(quint16(out_.size() - start_ - 4), out_.data() + start_ + 2); }

XlsRecords& XlsRecords::real(double number) {
    quint64 bits;
    std::memcpy(&bits, &number, sizeof bits);
    return u32(qint64(bits & 0xffffffff)).u32(qint64(bits >> 32));
}

XlsRecords& XlsRecords::text(const QString& text, bool shortLength) {
    const bool narrow = isNarrow(text);
    if (shortLength)
        u8(int(text.size()));
    else
        u16(int(text.size()));
    u8(narrow ? 0 : 1);
    addCharacters(out_, text, narrow);
    return *this;
}

quint32 SharedTexts::numberOf(const QString& text) {
    ++uses_;
    const auto found = numbers_.constFind(text);
    if (found != numbers_.constEnd()) return *found;
    const auto number = quint32(numbers_.size());
    numbers_.insert(text, number);
    add(text);
    return number;
}

/// A record holds so much and no more; what is left of a text goes on in the next one, which says anew how wide its
/// characters are.
void SharedTexts::add(const QString& text) {
    QStringView rest = QStringView(text).left(longestText);
    const bool narrow = isNarrow(rest);
    const qsizetype width = narrow ? 1 : 2;
    const auto startRecord = [&] {
        starts_.push_back(content_.size());
        room_ = mostInRecord;
    };
    if (room_ < 3 + width) startRecord();
    XlsRecords(content_).u16(int(rest.size())).u8(narrow ? 0 : 1);
    room_ -= 3;
    while (true) {
        const QStringView part = rest.left(room_ / width);
        addCharacters(content_, part, narrow);
        room_ -= part.size() * width;
        rest = rest.mid(part.size());
        if (rest.isEmpty()) return;
        startRecord();
        content_ += char(narrow ? 0 : 1);
        --room_;
    }
}

qint64 SharedTexts::size() const { return 4 + 8 + content_.size() + 4 * qint64(starts_.size()); }

void SharedTexts::write(QIODevice& file) const {
    const auto endOf = [this](size_t record) { return record < starts_.size() ? starts_[record] : content_.size(); };
    QByteArray head;
    XlsRecords(head).u16(XlsRecords::SharedTexts).u16(int(endOf(0)) + 8).u32(uses_).u32(numbers_.size());
    file.write(head);
    file.write(content_.constData(), endOf(0));
    for (size_t record = 0; record < starts_.size(); ++record) {
        const qsizetype length = endOf(record + 1) - starts_[record];
        QByteArray next;
        XlsRecords(next).u16(XlsRecords::Continue).u16(int(length));
        file.write(next);
        file.write(content_.constData() + starts_[record], length);
    }
}

std::optional<double> serialOf(QDate date) {
    // Before March 1900 the numbers are off by one: spreadsheets know a February 29, 1900.
    if (!date.isValid() || date < QDate(1900, 3, 1) || date.year() > 9999) return std::nullopt;
    return double(QDate(1899, 12, 30).daysTo(date));
}

}  // namespace report
