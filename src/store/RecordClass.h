#pragma once

#include "store/Columns.h"
#include "store/StoreContext.h"

#include <exception>
#include <optional>
#include <variant>

/// What a record class raises when one of its rules is broken.
class RecordError : public std::exception {
public:
    RecordError(quint32 number, QString source, QString text)
        : number_(number), source_(std::move(source)), text_(std::move(text)), bytes_(text_.toUtf8()) {}
    quint32 number() const { return number_; }
    /// The program's name followed by the class's tag.
    const QString& source() const { return source_; }
    const QString& text() const { return text_; }
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    quint32 number_;
    QString source_;
    QString text_;
    QByteArray bytes_;
};

/// The first number of a class error: an invalid move. The empty table follows, then each required property in order.
inline constexpr quint32 firstRecordError = 0x80040000u + 1011;

/// Move codes.
enum RecordMove { MoveFirst = 1, MoveLast = 2, MoveNext = 3, MovePrevious = 4 };

/// The pattern of all record classes: a cursor on one table, a copy of its current row in plain properties, and two
/// flags that tell whether the copy differs from the row.
///
/// A class derives from it, declares its columns as members, states what is particular to it as RecordRules, and
/// calls open() at the end of its constructor (the columns have registered themselves by then). Its own operations
/// (SaveDivRecord, ...) are one-line names for those given here. A record is never copied. Engine errors
/// (datafile::Error) pass through every operation to the caller.
class RecordClass {
public:
    virtual ~RecordClass() = default;
    RecordClass(const RecordClass&) = delete;
    RecordClass& operator=(const RecordClass&) = delete;

    bool isDirty() const { return dirty_; }
    bool isNew() const { return new_; }
    void setDirty(bool dirty) { dirty_ = dirty; }
    void setNew(bool isNew) { new_ = isNew; }
    bool isChanged() const { return dirty_ || new_; }
    /// Rows of the main cursor, deleted ones included.
    int recordCount() { return main_->recordCount(); }

    /// Moves the cursor and loads the row; at either end it stays on the last or first row. Raises RecordError for
    /// another code, datafile::Error on an empty table.
    void move(int code);
    /// Writes the row when dirty or new and valid, with fresh stamps; otherwise nothing. A new row takes the place of
    /// a soft-deleted one with the same natural key.
    void save() { save(StampSource::Fresh); }
    /// As save, with the stamps and the deleted flag that the properties hold.
    void saveMerge() { save(StampSource::Held); }
    /// Whether every required property is given; with `showError` the first that is not is raised.
    bool isValid(bool showError) const;
    /// Drops the edits: clears the flags and loads the current row again.
    virtual void undo();
    /// Makes the next update write every property: for a copy that is to go over another row.
    void assignAll();
    /// Blanks the properties and marks the record as new.
    virtual void newRecord();
    /// Blanks the properties; the flags stay.
    virtual void blank();
    /// Soft-deletes the current row and loads a neighbour; without one the properties are blank.
    void deleteRecord();
    /// Removes the current row for good and loads a neighbour; without one the properties are blank.
    void removeRecord();
    /// Runs the main cursor's query again, so that rows added by other holders are seen.
    void requery();

    /// Stands on the first row that meets the criteria and, if asked to, loads it.
    bool find(const QString& criteria, bool load);
    /// Whether this record, new or renamed, would share its natural key with another one that is not deleted.
    bool isKeyTaken();

    const std::vector<Column*>& columns() const { return columns_; }

protected:
    /// One without a column leaves its number out.
    struct Required {
        const Column* column = nullptr;
        const char* message = nullptr;
        bool raised = true;  ///< false: has a number and a text, but is never tested
    };
    /// What is particular to a class.
    struct RecordRules {
        const char* source;                     ///< table or query of the main cursor
        const char* tag;                        ///< ".clsDiv", behind the program's name in an error
        const char* noRecords;                  ///< "Division Table.  "
        std::vector<Required> required{};       ///< in order of their error numbers
        std::vector<const Text*> naturalKey{};  ///< a soft-deleted row with the same is revived by an add
        bool loadsDeleted = true;               ///< false: a soft-deleted row shows as a blank record
        const char* badMove = "Invalid move operation.";
    };
    /// Title and texts of a find that speaks; "%1" is the name looked for.
    struct FindTexts {
        const char* title;
        const char* onEmpty;
        const char* onMiss;
    };

    explicit RecordClass(StoreContext& context) : context_(context), database_(context.database()) {}
    void open(RecordRules rules);

    StoreContext& context() const { return context_; }
    const datafile::Database& database() const { return database_; }
    datafile::Recordset& main() { return *main_; }
    /// find() that says in a warning box that nothing was found, when `show` is set.
    bool findOrTell(const QString& criteria, const QString& name, bool show, bool load, const FindTexts& texts);
    /// The same in the words that most finds use: "No Records found for X." or, without a name, "No Records found.".
    bool findOrTell(const QString& criteria, const QString& name, bool show, bool load);
    bool findOrTell(const QString& criteria, bool show, bool load);
    /// Stands on the first row; an empty table is told with the title and `onEmpty`.
    bool firstOrTell(bool show, bool load, const FindTexts& texts);
    /// findOrTell by the first column of the natural key: the live row of that name, any row, a deleted one; the
    /// live row with the key.
    bool findByName(const QString& name, bool show, bool load);
    bool findAnyByName(const QString& name, bool show, bool load);
    bool findDeletedByName(const QString& name);
    bool findById(const Key& key, int id, bool show, bool load);
    void load();
    /// Marks every row of the query as deleted, with fresh stamps, in one transaction.
    void softDeleteRows(const QString& query);
    [[noreturn]] void raise(quint32 number) const;
    QString errorText(quint32 number) const;

    /// Where a save takes the stamps and the deleted flag from: the clock, or the properties, as a merge does.
    enum class StampSource { Fresh, Held };
    /// Called before a row is written; may assign properties.
    virtual void beforeWrite(bool /*adding*/, StampSource /*stamps*/) {}
    /// Called while the row is marked as deleted; may write further columns.
    virtual void whileDeleting(datafile::Recordset& /*row*/) {}
    /// Called when the current row was marked as deleted: loads the row before it, or the first one; without another
    /// row the properties are blank.
    virtual void loadNeighbour();
    /// The criteria of the row that an add takes over; empty for none.
    virtual QString twinCriteria() const;

private:
    friend class Column;
    friend class Day;
    friend class TimeOfDay;

    static Clock& clockOf(const Column& column) { return column.owner_->context_.clock; }
    void addColumn(Column* column) { columns_.push_back(column); }
    void save(StampSource stamps);
    void write(bool adding, StampSource stamps);
    QString keyCriteria() const;
    void clearFlags();
    template <class Kind>
    Kind* find(const char* name) const;

    StoreContext& context_;
    datafile::Database database_;
    std::optional<datafile::Recordset> main_;
    RecordRules rules_{};
    std::vector<Column*> columns_;
    bool dirty_ = false;
    bool new_ = false;
};

/// Criteria texts. `live` adds that the row is not deleted, `deleted` that it is.
QString live(const QString& criteria);
QString deleted(const QString& criteria);
QString matches(const char* column, const QString& text);
QString matches(const char* column, int number);
/// Columns with the value that each is to have.
using ColumnValues = std::vector<std::pair<const char*, std::variant<int, QString>>>;
QString matches(const ColumnValues& values);

// Rows of further tables, such as links, on a cursor of their own.

/// Whether a row meets the criteria; the cursor then stands on it.
bool standOn(datafile::Recordset& rows, const QString& criteria);
/// Writes the row that is being edited or added, with fresh stamps.
void updateStamped(datafile::Recordset& row, Clock& clock, bool deleted);
/// Leaves the cursor on a live row of these values: one that is there, a deleted one that comes back, or a new one.
void addOrRevive(datafile::Recordset& rows, Clock& clock, const ColumnValues& values);
/// Marks the current row as deleted.
void softDelete(datafile::Recordset& row, Clock& clock);
/// Marks every row of the cursor as deleted. The caller holds the transaction.
void softDeleteAll(datafile::Recordset& rows, Clock& clock);
/// The stamps' part of an UPDATE of many rows.
QString freshStamps(const Clock& clock);
