#pragma once

#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/Program.h"
#include "shell/RecordPane.h"

/// How a box of a lookup tab takes its text.
enum class BoxAs { Text, Comments, Phone, Zip, State, Country, Money };

/// The tab of one lookup table, declared: which record class, which list, which boxes.
template <class Record>
class LookupPane final : public RecordPane {
public:
    struct Box {
        QString name;
        QString caption;
        Text Record::*property;
        QString required{};  ///< the finding when it is empty; none for a box that may be
        BoxAs as = BoxAs::Text;
        QString frame{};  ///< begins a frame of this title
    };
    struct Lookup {
        PaneText text;
        bool (Record::*find)(const QString& name, bool show, bool load);
        Text Record::*key;
        std::vector<Box> boxes;
        bool sideBySide = false;                                ///< two boxes on a line
        void (*cascade)(Record& record) = nullptr;              ///< what goes with a record that is deleted
        QString (*statusName)(const Record& record) = nullptr;  ///< where it is not the key
    };

    /// `what` is what the record class is made with besides the store.
    template <class... What>
    LookupPane(Program& program, Lookup lookup, What... what)
        : RecordPane(program, lookup.text), record_(program.store, what...), lookup_(std::move(lookup)) {
        auto* form = new Form(this);
        FormBuilder builder(form);
        for (const Box& box : lookup_.boxes) {
            if (!box.frame.isEmpty() || &box == &lookup_.boxes.front()) builder.frame(box.frame);
            addBox(builder, box);
            if (!lookup_.sideBySide) builder.row();
        }
        start(record_, form);
    }

private:
    void addBox(FormBuilder& builder, const Box& box) {
        Text& text = record_.*box.property;
        switch (box.as) {
            case BoxAs::Text: builder.text(box.name, box.caption, text, FilterTextFull); break;
            case BoxAs::Comments: builder.comments(box.name, box.caption, text, FilterTextWide); break;
            case BoxAs::Phone: builder.masked(box.name, box.caption, phoneMask, maskedBinding(text)); break;
            case BoxAs::Zip: builder.masked(box.name, box.caption, zipMask, maskedBinding(text)); break;
            case BoxAs::State:
                builder.choice(box.name, box.caption, text, stateIds(program()),
                               ChoiceBox::FreeText | ChoiceBox::UpperCase, FilterTextFull);
                break;
            case BoxAs::Country:
                builder.choice(box.name, box.caption, text, {"Canada", "USA"},
                               ChoiceBox::FreeText | ChoiceBox::EmptyFirst, FilterTextFull);
                break;
            case BoxAs::Money: builder.money(box.name, box.caption, text); break;
        }
    }
    bool find(const QString& entry) override { return (record_.*lookup_.find)(entry, false, true); }
    QString name() const override { return lookup_.statusName ? lookup_.statusName(record_) : entry(); }
    QString entry() const override { return (record_.*lookup_.key)(); }
    QString firstField() const override { return lookup_.boxes.front().name; }
    std::vector<Finding> check() const override {
        std::vector<Finding> findings;
        for (const Box& box : lookup_.boxes)
            if (!box.required.isEmpty() && (record_.*box.property)().isEmpty())
                findings.push_back({box.name, box.required});
        return findings.empty() ? takenName() : findings;
    }
    void erase() override {
        if (lookup_.cascade) lookup_.cascade(record_);
        RecordPane::erase();
    }

    Record record_;
    Lookup lookup_;
};
