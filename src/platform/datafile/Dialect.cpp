#include "platform/datafile/Dialect.h"

#include "platform/datafile/Error.h"

#include <QCoreApplication>
#include <array>
#include <optional>

namespace datafile {

QString quoted(const QString& text) {
    QString escaped = text;
    escaped.replace(u'"', QStringLiteral("\"\""));
    return u'"' + escaped + u'"';
}

QString quoted(const QDate& date) {
    return u'#' + QString::number(date.month()) + u'-' + QString::number(date.day()) + u'-' +
           QString::number(date.year()) + u'#';
}

QString quoted(const QTime& time) { return u'#' + time.toString(Qt::ISODate) + u'#'; }

namespace dialect {

namespace {

[[noreturn]] void refuse(const QString& reason, const QString& statement) {
    throw Error(
        Fault::Statement,
        QCoreApplication::translate("datafile", "The query cannot be understood: %1\n%2").arg(reason, statement));
}

bool isWordStart(QChar c) { return c.isLetter() || c == u'_'; }
bool isWordPart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

/// M/D/Y or M-D-Y with a two- or four-digit year, an ISO date, and either or neither with a time behind it.
Value dateLiteral(const QString& text, const QString& statement) {
    static constexpr std::array timeFormats{"h:m:s AP", "h:m AP", "H:m:s", "H:m"};
    const QString trimmed = text.trimmed();
    const qsizetype blank = trimmed.indexOf(u' ');
    const bool onlyTime = trimmed.section(u' ', 0, 0).contains(u':');
    const QString datePart = onlyTime ? QString() : trimmed.left(blank < 0 ? trimmed.size() : blank);
    const QString timePart = onlyTime ? trimmed : (blank < 0 ? QString() : trimmed.mid(blank + 1).trimmed());

    QString result;
    if (!datePart.isEmpty()) {
        QString slashed = datePart;
        slashed.replace(u'/', u'-');
        const QStringList pieces = slashed.split(u'-');
        if (pieces.size() != 3) refuse(u'#' + text + u'#', statement);
        const bool iso = pieces[0].size() == 4;
        int year = pieces[iso ? 0 : 2].toInt();
        if (pieces[iso ? 0 : 2].size() <= 2) year += year >= 30 ? 1900 : 2000;
        const QDate date(year, pieces[iso ? 1 : 0].toInt(), pieces[iso ? 2 : 1].toInt());
        if (!date.isValid()) refuse(u'#' + text + u'#', statement);
        result = toText(fromDate(date));
    }
    if (!timePart.isEmpty()) {
        QTime time;
        for (const char* format : timeFormats)
            if (!time.isValid()) time = QLocale::c().toTime(timePart.toUpper(), QString::fromLatin1(format));
        if (!time.isValid()) refuse(u'#' + text + u'#', statement);
        if (!result.isEmpty()) result += u' ';
        result += time.toString(Qt::ISODate);
    }
    return result;
}

Value numberLiteral(QStringView text) {
    bool whole = false;
    const qint64 number = text.toLongLong(&whole);
    return whole ? Value{number} : Value{text.toDouble()};
}

/// Reads the text that begins with the quote at `at`, and moves `at` behind it.
QString textLiteral(const QString& statement, qsizetype& at) {
    const QChar quote = statement[at];
    QString text;
    while (true) {
        const qsizetype end = statement.indexOf(quote, ++at);
        if (end < 0) refuse(QStringLiteral("a quote is not closed"), statement);
        text += QStringView(statement).sliced(at, end - at);
        at = end + 1;
        if (at >= statement.size() || statement[at] != quote) return text;
        text += quote;
    }
}

/// Behind the name, word or symbol at `at`.
qsizetype behindPlain(const QString& statement, qsizetype at) {
    const QChar c = statement[at];
    if (c == u'?' || c == u';') refuse(c, statement);
    if (c == u'[') {
        const qsizetype end = statement.indexOf(u']', at);
        if (end < 0) refuse(QStringLiteral("["), statement);
        return end + 1;
    }
    if (isWordStart(c))
        while (at + 1 < statement.size() && isWordPart(statement[at + 1])) ++at;
    return at + 1;
}

enum class TokenKind { Word, Name, Value, Symbol };

struct Token {
    TokenKind kind;
    QString text;  ///< a name without its brackets

    bool isWord(const char* word) const {
        return kind == TokenKind::Word && text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    }
    bool isSymbol(QChar symbol) const { return kind == TokenKind::Symbol && text == symbol; }
    bool isIdentifier() const { return kind == TokenKind::Word || kind == TokenKind::Name; }
};

using Tokens = std::vector<Token>;

Tokens tokensOf(const QString& shape) {
    Tokens tokens;
    for (qsizetype i = 0; i < shape.size();) {
        const QChar c = shape[i];
        if (c.isSpace()) {
            ++i;
        } else if (c == u'[') {
            const qsizetype end = shape.indexOf(u']', i);
            if (end < 0) refuse(QStringLiteral("["), shape);
            tokens.push_back({TokenKind::Name, shape.mid(i + 1, end - i - 1)});
            i = end + 1;
        } else if (isWordStart(c)) {
            qsizetype end = i + 1;
            while (end < shape.size() && isWordPart(shape[end])) ++end;
            tokens.push_back({TokenKind::Word, shape.mid(i, end - i)});
            i = end;
        } else if (c == u'?') {
            tokens.push_back({TokenKind::Value, QStringLiteral("?")});
            ++i;
        } else {
            const bool two = i + 1 < shape.size() && ((c == u'<' && (shape[i + 1] == u'>' || shape[i + 1] == u'=')) ||
                                                      (c == u'>' && shape[i + 1] == u'='));
            tokens.push_back({TokenKind::Symbol, shape.mid(i, two ? 2 : 1)});
            i += two ? 2 : 1;
        }
    }
    return tokens;
}

bool isClauseWord(const Token& token) {
    static constexpr std::array words{
        "SELECT", "FROM",    "WHERE",  "ORDER", "GROUP",  "HAVING", "BY",     "AND",      "OR",     "NOT",   "IN",
        "IS",     "NULL",    "AS",     "ON",    "INNER",  "LEFT",   "RIGHT",  "OUTER",    "JOIN",   "ASC",   "DESC",
        "LIKE",   "BETWEEN", "INSERT", "INTO",  "UPDATE", "SET",    "DELETE", "DISTINCT", "VALUES", "UNION", "LIMIT",
        "EXISTS", "CASE",    "WHEN",   "THEN",  "ELSE",   "END",    "ALL",    "COLLATE"};
    return token.kind == TokenKind::Word &&
           std::any_of(words.begin(), words.end(), [&](const char* word) { return token.isWord(word); });
}

/// Writes tokens in the engine's language. One object translates one statement.
class Writer {
public:
    Writer(const Tokens& tokens, const TableLookup& tables, const QString& table) : tokens_(tokens), lookup_(tables) {
        if (const TableDef* own = table.isEmpty() ? nullptr : lookup_(table)) named_.push_back(own);
        for (const Token& token : tokens)
            if (token.isIdentifier())
                if (const TableDef* found = lookup_(token.text)) named_.push_back(found);
    }

    QString write(size_t from, size_t to) {
        at_ = from;
        return sequence(to);
    }

private:
    struct Unit {
        QString text;
        bool isDate = false;
        bool isJoin = false;  ///< the operator &
        bool isOperand = false;
    };

    QString sequence(size_t end) {
        std::vector<Unit> units;
        while (at_ < end && !tokens_[at_].isSymbol(u')')) units.push_back(unit(end));
        QStringList parts;
        for (size_t i = 0; i < units.size(); ++i) {
            if (!(units[i].isOperand && i + 2 < units.size() && units[i + 1].isJoin)) {
                parts << units[i].text;
                continue;
            }
            QStringList operands{asText(units[i])};
            while (i + 2 < units.size() && units[i + 1].isJoin) {
                operands << asText(units[i + 2]);
                i += 2;
            }
            parts << QStringLiteral("joined(") + operands.join(QStringLiteral(", ")) + u')';
        }
        lastWasSingleDate_ = units.size() == 1 && units[0].isDate;
        return parts.join(u' ');
    }

    static QString asText(const Unit& unit) {
        return unit.isDate ? QString(QStringLiteral("shortdate(") + unit.text + u')') : unit.text;
    }

    Unit unit(size_t end) {
        const Token& token = tokens_[at_];
        if (token.kind == TokenKind::Value) return ++at_, Unit{QStringLiteral("?"), false, false, true};
        if (token.isSymbol(u'(')) return group(end);
        if (token.kind == TokenKind::Symbol) return ++at_, Unit{token.text, false, token.text == u'&', false};
        if (token.isWord("True")) return ++at_, Unit{QStringLiteral("1"), false, false, true};
        if (token.isWord("False")) return ++at_, Unit{QStringLiteral("0"), false, false, true};
        if (isClauseWord(token)) return ++at_, Unit{token.text, false, false, false};
        return reference(end);
    }

    Unit group(size_t end) {
        ++at_;
        const QString inside = sequence(end);
        const bool date = lastWasSingleDate_;
        if (at_ >= end) refuse(QStringLiteral("("), inside);
        ++at_;
        return {u'(' + inside + u')', date, false, true};
    }

    /// A column, table!column, table.* or a function with its arguments.
    Unit reference(size_t end) {
        const Token& first = tokens_[at_++];
        const bool call =
            first.kind == TokenKind::Word && at_ < end && tokens_[at_].isSymbol(u'(') && !lookup_(first.text);
        if (call) return {first.text + group(end).text, false, false, true};
        if (at_ + 1 < end && (tokens_[at_].isSymbol(u'!') || tokens_[at_].isSymbol(u'.'))) {
            const Token& second = tokens_[at_ + 1];
            at_ += 2;
            if (second.isSymbol(u'*')) return {identifier(first) + QStringLiteral(".*"), false, false, true};
            const TableDef* table = lookup_(first.text);
            const FieldDef* field = table ? table->field(second.text) : nullptr;
            return {identifier(first) + u'.' + identifier(second), field && field->type == ColumnType::Date, false,
                    true};
        }
        bool date = false;
        for (const TableDef* table : named_) {
            const FieldDef* field = table->field(first.text);
            date = date || (field && field->type == ColumnType::Date);
        }
        return {identifier(first), date, false, true};
    }

    static QString identifier(const Token& token) {
        QString name = token.text;
        name.replace(u'"', QStringLiteral("\"\""));
        return u'"' + name + u'"';
    }

    const Tokens& tokens_;
    const TableLookup& lookup_;
    std::vector<const TableDef*> named_;
    size_t at_ = 0;
    bool lastWasSingleDate_ = false;
};

/// Position of a word outside all parentheses, from `from` on.
std::optional<size_t> topLevel(const Tokens& tokens, const char* word, size_t from = 0) {
    int depth = 0;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].isSymbol(u'(')) ++depth;
        if (tokens[i].isSymbol(u')')) --depth;
        if (i >= from && depth == 0 && tokens[i].isWord(word)) return i;
    }
    return {};
}

qsizetype countValues(const Tokens& tokens, size_t from, size_t to) {
    return std::count_if(tokens.begin() + static_cast<std::ptrdiff_t>(from),
                         tokens.begin() + static_cast<std::ptrdiff_t>(to),
                         [](const Token& token) { return token.kind == TokenKind::Value; });
}

bool hasAggregate(const Tokens& tokens, size_t from, size_t to) {
    static constexpr std::array names{"COUNT", "SUM", "MIN", "MAX", "AVG"};
    for (size_t i = from; i + 1 < to; ++i)
        if (tokens[i + 1].isSymbol(u'(') &&
            std::any_of(names.begin(), names.end(), [&](const char* name) { return tokens[i].isWord(name); }))
            return true;
    return false;
}

}  // namespace

Shape shapeOf(const QString& statement) {
    Shape shape;
    shape.text.reserve(statement.size());
    qsizetype copied = 0;  // what stands before this is in the shape
    for (qsizetype i = 0; i < statement.size();) {
        const QChar c = statement[i];
        const qsizetype begin = i;
        if (c == u'"' || c == u'\'') {
            shape.values.emplace_back(textLiteral(statement, i));
        } else if (c == u'#') {
            const qsizetype end = statement.indexOf(u'#', i + 1);
            if (end < 0) refuse(QStringLiteral("a date is not closed"), statement);
            shape.values.push_back(dateLiteral(statement.mid(i + 1, end - i - 1), statement));
            i = end + 1;
        } else if (c.isDigit()) {
            while (i < statement.size() && (statement[i].isDigit() || statement[i] == u'.')) ++i;
            shape.values.push_back(numberLiteral(QStringView(statement).sliced(begin, i - begin)));
        } else {
            i = behindPlain(statement, i);
            continue;
        }
        shape.text += QStringView(statement).sliced(copied, begin - copied);
        shape.text += u'?';
        copied = i;
    }
    shape.text += QStringView(statement).sliced(copied);
    return shape;
}

QString translate(const QString& shape, const TableLookup& tables, const QString& table) {
    const Tokens tokens = tokensOf(shape);
    return Writer(tokens, tables, table).write(0, tokens.size());
}

Query translateQuery(const QString& shape, const TableLookup& tables) {
    const Tokens tokens = tokensOf(shape);
    Writer writer(tokens, tables, {});
    Query query;
    query.whole = writer.write(0, tokens.size());
    const auto from = topLevel(tokens, "FROM");
    if (tokens.empty() || !tokens[0].isWord("SELECT") || !from) return query;

    const size_t end = tokens.size();
    const size_t order = topLevel(tokens, "ORDER", *from).value_or(end);
    const size_t where = topLevel(tokens, "WHERE", *from).value_or(order);
    const bool single = where == *from + 2 && tokens[*from + 1].isIdentifier() && tables(tokens[*from + 1].text);
    if (!single || (tokens.size() > 1 && tokens[1].isWord("DISTINCT")) || topLevel(tokens, "GROUP") ||
        hasAggregate(tokens, 0, *from))
        return query;

    query.table = tables(tokens[*from + 1].text)->name;
    query.columns = writer.write(1, *from);
    query.columnValues = countValues(tokens, 1, *from);
    if (where < order) query.where = writer.write(where + 1, order);
    query.whereValues = countValues(tokens, where, order);
    if (order < end) query.orderBy = writer.write(order + 2, end);
    query.orderValues = countValues(tokens, order, end);
    return query;
}

}  // namespace dialect

}  // namespace datafile
