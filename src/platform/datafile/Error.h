#pragma once

#include <QString>
#include <exception>

namespace datafile {

enum class Fault {
    NotFound,      ///< no such file
    NotADataFile,  ///< a file, but none of ours
    Damaged,       ///< ours, but its content cannot be trusted
    ReadOnly,      ///< the file or its folder cannot be written
    Locked,        ///< another process holds it
    Full,          ///< no space left
    InputOutput,   ///< the system reported a read or write failure
    OutOfMemory,
    TooLong,          ///< a text longer than its column
    Required,         ///< a missing required value
    NotAllowed,       ///< a value its column refuses (an empty text, a word in a number column)
    Duplicate,        ///< a second row with a unique key
    Relation,         ///< a row that another row refers to, or that refers to none
    Statement,        ///< wrong query text, unknown table or column
    NoCurrentRecord,  ///< the cursor stands on no row
    State             ///< an operation out of turn, such as update without edit
};

/// Whether the file refused what it was told to do with a row or table, as against not being able to carry out
/// anything.
constexpr bool isRefusal(Fault fault) { return fault >= Fault::TooLong; }

/// What every operation of this folder raises: a kind for the program and a text the user can act on.
class Error : public std::exception {
public:
    Error(Fault fault, QString text) : fault_(fault), text_(std::move(text)), bytes_(text_.toUtf8()) {}
    Fault fault() const { return fault_; }
    const QString& text() const { return text_; }
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    Fault fault_;
    QString text_;
    QByteArray bytes_;
};

}  // namespace datafile
