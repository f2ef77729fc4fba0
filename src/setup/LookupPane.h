#pragma once

#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/Program.h"
#include "shell/RecordPane.h"

/// The tab of one lookup table, declared: which record class, which list, which boxes.
template <class Record>
class LookupPane final : public RecordPane {
public:
    struct Box {
        QString name;
        QString caption;
        Text Record::*property;
        QString required{};     ///< the finding when it is empty; none for a box that may be
        bool comments = false;  ///< a box of several lines
    };
    struct Lookup {
        PaneText text;
        bool (Record::*find)(const QString& name, bool show, bool load);
        Text Record::*key;
        std::vector<Box> boxes;
        void (*cascade)(Record& record) = nullptr;  ///< what goes with a record that is deleted
    };

    LookupPane(Program& program, Lookup lookup) : RecordPane(program, lookup.text), record_(program.store), lookup_(std::move(lookup)) {
        auto* form = new Form(this);
        FormBuilder builder(form);
        builder.frame({});
        for (const Box& box : lookup_.boxes) {
            if (box.comments) builder.comments(box.name, box.caption, record_.*box.property, FilterTextFull);
            else builder.text(box.name, box.caption, record_.*box.property, FilterTextFull);
            builder.row();
        }
        start(record_, form);
    }

private:
    bool find(const QString& entry) override { return (record_.*lookup_.find)(entry, false, true); }
    QString name() const override { return (record_.*lookup_.key)(); }
    QString firstField() const override { return lookup_.boxes.front().name; }
    std::vector<Finding> check() const override {
        std::vector<Finding> findings;
        for (const Box& box : lookup_.boxes)
            if (!box.required.isEmpty() && (record_.*box.property)().isEmpty()) findings.push_back({box.name, box.required});
        return findings;
    }
    void erase() override {
        if (lookup_.cascade) lookup_.cascade(record_);
        RecordPane::erase();
    }

    Record record_;
    Lookup lookup_;
};
