#pragma once

#include "platform/datafile/Dialect.h"
#include "platform/datafile/Error.h"

#include <QHash>
#include <memory>
#include <optional>

namespace datafile {

class Connection;
class Statement;

/// A cursor on the rows of a table or query.
///
/// A dynaset (a query over one table) keeps the keys of its rows in order, taken when a move first needs them, and
/// reads a row when it is stood on, so it shows other holders' changes; their new rows it shows after requery(). It
/// can be edited. Any other query is a snapshot: rows as they were when it was opened, read only.
/// No statement stays open between two calls. Every operation raises Error.
class Recordset {
public:
    enum class Type { Dynaset, Snapshot };
    enum class EditMode { None, Edit, Add };
    /// Names a row for the life of the cursor; 0 is no row.
    using Bookmark = qint64;

    Recordset(std::shared_ptr<Connection> connection, const QString& source, Type type);

    bool bof() const { return place_ == Place::Before || (place_ == Place::Empty); }
    bool eof() const { return place_ == Place::After || (place_ == Place::Empty); }
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();

    /// Stands on the first row that meets the criteria ("DivName = ""Minors"" AND DeletedFlag = False"), by an index
    /// where there is one. Without a match the current row stays and noMatch() is true.
    void findFirst(const QString& criteria);
    bool noMatch() const { return noMatch_; }

    /// Starts a new row; the current row stays current until the bookmark is set to lastModified().
    void addNew();
    void edit();
    /// Writes the values set since edit() or addNew(): these columns and no others. When it raises, nothing was
    /// written.
    void update();
    /// Adds many rows of values for these columns, each converted as set() does, in one go. When one does not fit it
    /// raises, and outside a transaction none was added. The cursor shows the rows after requery().
    void addRows(const QStringList& columns, const std::vector<Values>& rows);
    void cancelUpdate() { mode_ = EditMode::None; }
    EditMode editMode() const { return mode_; }
    /// Removes the current row for good. The cursor then stands between its neighbours.
    void remove();

    void requery();
    /// Exact.
    int recordCount();
    /// Counted from 0; -1 when the cursor stands on no row.
    int absolutePosition();
    Bookmark bookmark() const { return place_ == Place::Row ? current_ : 0; }
    void setBookmark(Bookmark row);
    Bookmark lastModified() const { return lastModified_; }

    int fieldCount() const { return static_cast<int>(fields_.size()); }
    const QString& fieldName(int field) const { return fields_[static_cast<size_t>(field)].name; }
    ColumnType fieldType(int field) const { return fields_[static_cast<size_t>(field)].type; }
    /// Raises Error(Statement) for an unknown name.
    int field(const QString& name) const;

    /// The current row's values as they stand in the file, in the order of the fields. Good until the next call.
    const Values& row();
    const Value& value(int field) { return row()[static_cast<size_t>(field)]; }
    const Value& value(const QString& name) { return value(field(name)); }
    QString text(const QString& name) { return toText(value(field(name))); }
    qint64 number(const QString& name, qint64 otherwise = 0) { return toNumber(value(field(name)), otherwise); }
    bool flag(const QString& name) { return number(name) != 0; }
    QDate date(const QString& name) { return toDate(value(field(name))); }

    /// Converted to the column's type: a numeric text for a number column, "" for nothing there. Raises Error
    /// (NotAllowed) naming the column when the value does not fit it.
    void set(int field, Value value);
    void set(const QString& name, Value value) { set(field(name), std::move(value)); }
    void set(const QString& name, const QDate& date) { set(field(name), fromDate(date)); }
    void set(const QString& name, bool flag) { set(field(name), fromFlag(flag)); }
    void set(const QString& name, int number) { set(field(name), Value{qint64{number}}); }

private:
    enum class Place { Before, Row, Gap, After, Empty };
    struct Field {
        QString name;
        ColumnType type;
        bool own;  ///< a column of the table, as against an expression
    };

    [[noreturn]] static void refuseRemoved();
    void open();
    void refreshAfterReplacement();
    void describe();
    void findInSnapshot(const dialect::Shape& shape);
    void takeKeys();
    void standOn(qint64 key);
    int position();
    void loadRow();
    void readAhead();
    void readBlock(size_t at);
    void readRow(const Statement& statement, Values& into) const;
    void readSnapshot();
    QString rowsOf(const char* wanted, const QString& criteria) const;
    QString keyQuery(const QString& criteria, const char* ending) const;
    Values keyValues(const Values& criteria = {}) const;
    const QString& writeSql();
    QString insertSql(const QStringList& names) const;
    void writeRow();

    std::shared_ptr<Connection> connection_;
    Type type_;
    dialect::Shape shape_;
    dialect::Query query_;
    QString rowSql_;    ///< reads the row of a key
    QString blockSql_;  ///< reads the rows of as many keys as a block has, each with its key behind it
    std::vector<Field> fields_;
    QHash<QString, int> fieldByName_;  ///< lower-case name
    QHash<QString, QString> findSql_;  ///< criteria shape -> statement
    int epoch_ = 0;

    Place place_ = Place::Empty;
    qint64 current_ = 0;
    int position_ = -1;  ///< -1: not yet looked up
    std::optional<std::vector<qint64>> keys_;
    bool noMatch_ = false;

    Values row_;
    bool rowLoaded_ = false;
    qint64 rowChanges_ = 0;  ///< the connection's count of changes when the row was read
    int sequentialMoves_ = 0;
    std::vector<Values> ahead_;  ///< a block of rows read in one go; its storage is used again
    size_t aheadFrom_ = 0;       ///< position of the block's first row
    size_t aheadNext_ = 0;       ///< of the first row that was not taken out of it yet
    size_t aheadEnd_ = 0;
    qint64 aheadChanges_ = 0;
    std::vector<Values> snapshot_;

    EditMode mode_ = EditMode::None;
    std::vector<std::pair<int, Value>> pending_;
    struct Written {
        EditMode mode = EditMode::None;
        std::vector<int> fields{};
        QString sql{};
    } written_;  ///< how the last row was written
    qint64 lastModified_ = 0;
};

}  // namespace datafile
