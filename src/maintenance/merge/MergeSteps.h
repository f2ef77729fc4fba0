#pragma once

#include <QString>
#include <vector>

/// What the merge of two data files does, as data: for each table by what a row is recognised, which of its columns
/// name rows of other tables, and which of two copies stays.

/// What becomes of a row whose reference leads to no row of the local file.
enum class Unknown {
    Zero,             ///< it is written without the reference
    Skips,            ///< it is not merged
    SkipsUnlessZero,  ///< the same, but a row that never had the reference is merged
    SkipsUnlessLive   ///< it is not merged, nor is one whose reference leads to a deleted row
};

/// A column that names a row of another table, merged before, by that row's key.
struct ForeignKey {
    const char* column;
    const char* parent;
    Unknown unknown = Unknown::Zero;
    const char* within = nullptr;  ///< a team: the column of the division in which it is looked for
    bool sameDivision = false;     ///< a team: only one that belongs to that division in its own file
};

/// How the local copy of a row is found by the natural key. A live row always comes before a deleted one.
enum class Match {
    Any,
    // Of these a deleted row that has a live twin in its own file is not merged.
    LiveOrDeletedAlike,  ///< a live row meets live ones only; a deleted row meets deleted ones too
    LiveOrReused,        ///< a deleted row is written over, whatever the stamps, in place of a new one
    PlayerText,  ///< by the text of a list entry; where that cannot be cut back, the same person is written over
};

/// What becomes of the local copy.
enum class Existing { OlderYields, Yields, Stays };

struct MergeTable {
    const char* name;
    std::vector<const char*> naturalKey;
    const char* id = nullptr;                     ///< the column by which other tables refer to it
    std::vector<const char*> order{};             ///< of the source rows; rows of one place come by their keys
    std::vector<ForeignKey> foreign{};            ///< a division stands before the teams within it
    std::vector<const char*> required{};          ///< a row without one of these texts is not written
    std::vector<const char*> neverWritten{};      ///< columns
    std::vector<const char*> zeroUnlessNumber{};  ///< texts that a new row gets as "0" where they are no number
    std::vector<const char*> oneUnlessNumber{};   ///< the same with "1"
    Match match = Match::Any;
    Existing existing = Existing::OlderYields;
    /// A column that tells rows of one natural key apart. A row takes the local one with the same value; else one whose
    /// own value no source row of that natural key has; else it is new.
    const char* finer = nullptr;
    const char* age = nullptr;    ///< a column that is computed for each row written
    bool addsDeleted = true;      ///< false: a deleted row that the local file does not know stays away
    bool needsReference = false;  ///< a row without any reference is not merged
    bool stampedNow = false;      ///< written with the present time as its stamps
    int noTime = 1;               ///< what a missing time stamp counts as in the local file
};

struct MergeStep {
    const char* text;  ///< shown while it runs; to be translated in the context "Merge"
    std::vector<MergeTable> tables;
    const char* afterwards = nullptr;  ///< a statement that ends the step; see there
};

/// In the order in which they run: parents come before their children.
std::vector<MergeStep> mergeSteps();
