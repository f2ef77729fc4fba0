#pragma once

#include <optional>

#include "equipment/clsEquipmentAssignment.h"
#include "shell/RecordPane.h"

class FormBuilder;
class clsAbilityRating;

/// What a pane of people says of them, and where they are kept. In questions %1 is the first name, %2 the last.
struct PersonText {
    const char* table;
    const char* idColumn;
    const char* activeColumn;
    std::vector<const char*> followers;  ///< tables whose rows move to the row that takes the person's place
    QString prefix;                      ///< of boxes: "Vol" makes txtVolCustomField1
    QString labelColumn;                 ///< of the preferences' custom labels; their number follows
    QString addQuestion;
    QString takenTitle;
    QString takenText;
    QString duplicateQuestion;
    QString overwriteQuestion;
    QString renameError;
    QString equipmentError;
};

/// A pane of people. Each is known by last name, first name and one thing more, which its list entry says. Before a
/// save that changes these, or adds them, the user decides what is meant.
class PersonPane : public RecordPane {
    Q_OBJECT

public:
    PersonPane(Program& program, PaneText text, PersonText person);
    void refresh() override;

protected:
    /// The row that has the names in the form.
    struct Twin {
        int id;
        bool deleted;
    };
    virtual std::optional<Twin> twin() const = 0;
    /// Lets the record's cursor stand on the twin and keeps what is in the form.
    virtual bool standOnTwin() = 0;
    virtual int id() const = 0;
    /// The person as one who may have equipment.
    virtual EquipmentHolder holder() const = 0;
    /// Lets the ratings' cursor stand on the person's own.
    virtual bool findRating(clsAbilityRating& ratings) const = 0;
    virtual bool isActive() const = 0;
    virtual QString firstName() const = 0;

    enum class Settled { Stop, Save, Rename };
    /// Asks whatever is needed before the save. Rename: the row stays, the person is known otherwise.
    Settled settleIdentity();

    /// The tab with the fields that the league names itself.
    void addCustomTab(FormBuilder& builder, const std::vector<Text*>& fields);
    void showCustomLabels();
    datafile::Database database() const;

    void shown() override;
    bool mayDelete() override;
    /// The rating goes first.
    void erase() override;

private:
    Settled settleRename();
    Settled settleNew(bool sameAsLoaded);
    bool goOverTwin();
    void revive(int revivedId);
    QString withNames(const QString& text) const { return text.arg(firstName(), unsavedName()); }

    PersonText person_;
    QString loaded_;  ///< entry of the record as it came from the file
};

/// Nothing typed, or the untouched mask of a phone.
bool isBlank(const Text& text);
