#include "platform/widgets/FormBuilder.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>

#include "platform/text/KeyFilters.h"
#include "platform/text/Money.h"
#include "platform/widgets/CommentBox.h"
#include "platform/widgets/DateBox.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/MaskedEdit.h"
#include "platform/widgets/RadioRow.h"

namespace {

constexpr int mostShownCharacters = 30;
constexpr int narrowField = 16;  ///< up to here a box keeps its own width

QString withoutMarks(const QString& caption) {
    QString plain = caption;
    plain.remove(u'&').remove(u'*');
    return plain.simplified();
}

void keepWidth(QWidget* widget, int characters) {
    const bool narrow = characters > 0 && characters <= narrowField;
    widget->setSizePolicy(narrow ? QSizePolicy::Maximum : QSizePolicy::Expanding, QSizePolicy::Fixed);
}

}  // namespace

FormBuilder::FormBuilder(Form* form) : form_(form) {}

/// An area that scrolls what does not fit and otherwise cannot be seen.
QWidget* FormBuilder::scrolled(QScrollArea* area) {
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    page(content);
    area->setWidget(content);
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    return content;
}

/// What the form or one of its tabs shows: columns, in an area that scrolls when the window is too small.
void FormBuilder::page(QWidget* content) {
    page_ = new QVBoxLayout(content);
    page_->setContentsMargins(0, 0, 0, 0);
    page_->setSpacing(spacing::group);
    page_->addStretch(1);
    below();
}

FormBuilder& FormBuilder::below() {
    columns_ = new ColumnRow(page_->parentWidget());
    page_->insertWidget(page_->count() - 1, columns_);
    column_ = nullptr;
    form_->addPage(columns_);
    return *this;
}

FormBuilder& FormBuilder::tab(const QString& title) {
    auto* area = new QScrollArea(form_);
    scrolled(area)->layout()->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    addTab(title, area);
    return *this;
}

FormBuilder& FormBuilder::tab(const QString& title, QWidget* content) {
    addTab(title, content);
    form_->addPage(content);
    return *this;
}

void FormBuilder::addTab(const QString& title, QWidget* content) {
    if (!tabs_) {
        tabs_ = new QTabWidget(form_);
        auto* layout = new QVBoxLayout(form_);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(tabs_);
        form_->setTabs(tabs_);
    }
    tabs_->addTab(content, title);
}

FormBuilder& FormBuilder::column(int weight) {
    if (!columns_) {
        auto* layout = new QVBoxLayout(form_);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* area = new QScrollArea(form_);
        scrolled(area);
        layout->addWidget(area);
    }
    auto* widget = new QWidget(columns_);
    auto* inside = new QVBoxLayout(widget);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(spacing::group);
    inside->setAlignment(Qt::AlignTop);
    columns_->addColumn(widget, weight);
    column_ = inside;
    return *this;
}

FormBuilder& FormBuilder::frame(const QString& title, int pairs) {
    if (!column_) column();
    QWidget* box = title.isEmpty() ? new QWidget : new QGroupBox(title);
    auto* inside = new QVBoxLayout(box);
    if (title.isEmpty()) inside->setContentsMargins({});
    grid_ = new PairGrid(pairs, box);
    inside->addWidget(grid_);
    span_ = 1;
    beginsLine_ = false;
    column_->addWidget(box);
    return *this;
}

FormBuilder& FormBuilder::row() {
    beginsLine_ = true;
    return *this;
}

FormBuilder& FormBuilder::span(int pairs) {
    span_ = pairs;
    return *this;
}

FormBuilder& FormBuilder::together(const QString& caption) {
    auto* both = new QWidget;
    auto* layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::group);
    both->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    QWidget* before = last_;
    place(both, caption, nullptr);
    last_ = before;
    together_ = layout;
    togetherLeft_ = 2;
    return *this;
}

/// Puts a caption and a widget into the next pair of the grid.
QLabel* FormBuilder::place(QWidget* widget, const QString& caption, QWidget* buddy) {
    QLabel* label = nullptr;
    if (togetherLeft_ > 0) {
        --togetherLeft_;
        together_->addWidget(widget);
        if (last_) QWidget::setTabOrder(last_, widget);
        last_ = widget;
        return label;
    }
    if (!caption.isEmpty()) {
        const bool tall = qobject_cast<CommentBox*>(widget);
        label = new QLabel(caption);
        label->setBuddy(buddy);
        label->setAlignment(Qt::AlignLeft | (tall ? Qt::AlignTop : Qt::AlignVCenter));
        if (tall) label->setContentsMargins(0, 4, 0, 0);
    }
    grid_->add(label, widget, std::exchange(span_, 1), std::exchange(beginsLine_, false));
    if (last_) QWidget::setTabOrder(last_, buddy ? buddy : widget);
    last_ = buddy ? buddy : widget;
    return label;
}

QWidget* FormBuilder::named(QWidget* editor, const QString& name, const QString& caption) {
    editor->setObjectName(name);
    editor->setAccessibleName(withoutMarks(caption));
    return editor;
}

template <class Show>
void FormBuilder::add(const QString& name, QWidget* editor, QLabel* caption, const Binding& value, Show show) {
    form_->addField({.name = name,
                     .editor = editor,
                     .caption = caption,
                     .read = [read = value.read] { return QVariant(read()); },
                     .write = [write = value.write](const QVariant& now) { write(now.toString()); },
                     .display = [show](const QVariant& now) { show(now.toString()); }});
}

template <class Edit>
void FormBuilder::addTextBox(const QString& name, Edit* editor, QLabel* caption, const Binding& value) {
    add(name, editor, caption, value, [editor](const QString& text) { editor->setText(text); });
    QObject::connect(editor, &QLineEdit::textChanged, form_,
                     [form = form_, name](const QString& text) { form->edit(name, text); });
}

FormBuilder& FormBuilder::text(const QString& name, const QString& caption, Binding value, KeyFilter filter) {
    auto* editor = new FilteredEdit;
    editor->setKeyFilter(std::move(filter));
    editor->setMaxLength(value.maxLength);
    editor->setShownCharacters(qBound(2, value.maxLength, mostShownCharacters));
    keepWidth(editor, value.maxLength);
    named(editor, name, caption);
    addTextBox(name, editor, place(editor, caption, editor), value);
    return *this;
}

FormBuilder& FormBuilder::masked(const QString& name, const QString& caption, const QString& mask, Binding value) {
    auto* editor = new MaskedEdit(mask);
    editor->setShownCharacters(static_cast<int>(mask.size()) + 1);
    keepWidth(editor, static_cast<int>(mask.size()));
    named(editor, name, caption);
    addTextBox(name, editor, place(editor, caption, editor), value);
    return *this;
}

FormBuilder& FormBuilder::phone(const QString& areaName, const QString& name, const QString& caption, Binding area,
                                Binding number) {
    auto* both = new QWidget;
    auto* layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::label / 2);
    both->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    auto* areaBox = new MaskedEdit(QStringLiteral("###"));
    auto* numberBox = new MaskedEdit(QStringLiteral("###-####"));
    areaBox->setShownCharacters(4);
    numberBox->setShownCharacters(9);
    for (MaskedEdit* box : {areaBox, numberBox}) {
        box->setMovesOnWhenFull(true);
        keepWidth(box, 8);
        layout->addWidget(box);
    }
    named(areaBox, areaName, caption + QStringLiteral(" (area)"));
    named(numberBox, name, caption);
    QLabel* label = place(both, caption, areaBox);
    QWidget::setTabOrder(areaBox, numberBox);
    last_ = numberBox;
    addTextBox(areaName, areaBox, label, area);
    addTextBox(name, numberBox, nullptr, number);
    return *this;
}

FormBuilder& FormBuilder::money(const QString& name, const QString& caption, Binding value) {
    auto* editor = new FilteredEdit;
    editor->setKeyFilter(FilterMoney);
    editor->setMaxLength(value.maxLength);
    editor->setShownCharacters(10);
    editor->setAlignment(Qt::AlignRight);
    keepWidth(editor, 10);
    named(editor, name, caption);
    add(name, editor, place(editor, caption, editor), value, [editor](const QString& text) {
        const auto amount = Money::parse(text);
        editor->setText(amount ? amount->text() : text);
    });
    QObject::connect(editor, &QLineEdit::textChanged, form_,
                     [form = form_, name](const QString& text) { form->edit(name, text); });
    return *this;
}

FormBuilder& FormBuilder::choice(const QString& name, const QString& caption, Binding value, const QStringList& entries,
                                 ChoiceBox::Options options, KeyFilter filter) {
    auto* editor = new ChoiceBox(options);
    editor->setEntries(entries);
    editor->setLimits(std::move(filter), value.maxLength);
    int longest = 4;
    for (const QString& entry : entries) longest = qMax(longest, static_cast<int>(entry.size()));
    if (entries.isEmpty() || options & ChoiceBox::FreeText) longest = qMax(longest, value.maxLength);
    for (const int step : {4, 10, narrowField})
        if (longest <= step) {  // few widths, so that boxes below each other end alike
            longest = step;
            break;
        }
    editor->setShownCharacters(qMin(longest, mostShownCharacters));
    keepWidth(editor, longest);
    named(editor, name, caption);
    add(name, editor, place(editor, caption, editor), value, [editor](const QString& text) { editor->setText(text); });
    QObject::connect(editor, &ChoiceBox::edited, form_,
                     [form = form_, name](const QString& text) { form->edit(name, text); });
    return *this;
}

FormBuilder& FormBuilder::date(const QString& name, const QString& caption, DateBinding value) {
    auto* editor = new DateBox;
    editor->setShownCharacters(11);
    keepWidth(editor, 11);
    named(editor, name, caption);
    QLabel* label = place(editor, caption, editor);
    form_->addField({.name = name,
                     .editor = editor,
                     .caption = label,
                     .read = [read = value.read] { return QVariant(read()); },
                     .write = [write = value.write](const QVariant& now) { write(now.toDate()); },
                     .display = [editor](const QVariant& now) { editor->setDate(now.toDate()); },
                     .isReadable = [editor] { return editor->isReadable(); }});
    QObject::connect(editor, &DateBox::edited, form_,
                     [form = form_, name](const QDate& now) { form->edit(name, now); });
    return *this;
}

FormBuilder& FormBuilder::check(const QString& name, const QString& caption, FlagBinding value) {
    auto* editor = new QCheckBox(caption);
    named(editor, name, caption);
    place(editor, {}, editor);
    form_->addField({.name = name,
                     .editor = editor,
                     .read = [read = value.read] { return QVariant(read()); },
                     .write = [write = value.write](const QVariant& now) { write(now.toBool()); },
                     .display = [editor](const QVariant& now) { editor->setChecked(now.toBool()); }});
    QObject::connect(editor, &QCheckBox::toggled, form_, [form = form_, name](bool now) { form->edit(name, now); });
    return *this;
}

FormBuilder& FormBuilder::options(const QString& name, const QString& caption, const QStringList& answers,
                                  IndexBinding value) {
    auto* editor = new RadioRow(name, withoutMarks(caption), answers);
    QLabel* label = place(editor, caption, editor);
    form_->addField({.name = name,
                     .editor = editor,
                     .caption = label,
                     .read = [read = value.read] { return QVariant(read()); },
                     .write = [write = value.write](const QVariant& now) { write(now.toInt()); },
                     .display = [editor](const QVariant& now) { editor->setIndex(now.toInt()); }});
    QObject::connect(editor, &RadioRow::edited, form_, [form = form_, name](int now) { form->edit(name, now); });
    return *this;
}

FormBuilder& FormBuilder::yesNo(const QString& name, const QString& caption, FlagBinding isYes) {
    return options(
        name, caption, {Form::tr("Yes"), Form::tr("No")},
        {[read = isYes.read] { return read() ? 0 : 1; }, [write = isYes.write](int index) { write(index == 0); }});
}

FormBuilder& FormBuilder::comments(const QString& name, const QString& caption, Binding value, KeyFilter filter) {
    auto* editor = new CommentBox;
    editor->setLimits(std::move(filter), value.maxLength);
    editor->setTabChangesFocus(true);
    named(editor, name, caption);
    span_ = grid_->pairs();
    add(name, editor, place(editor, caption, editor), value, [editor](const QString& text) { editor->setText(text); });
    QObject::connect(editor, &CommentBox::edited, form_,
                     [form = form_, name](const QString& text) { form->edit(name, text); });
    return *this;
}

FormBuilder& FormBuilder::shown(const QString& name, const QString& caption, std::function<QString()> read,
                                int characters) {
    auto* value = new QLabel;
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setMinimumWidth(value->fontMetrics().averageCharWidth() * qMin(characters, narrowField));
    named(value, name, caption);
    QLabel* label = place(value, caption, nullptr);
    form_->addField({.name = name,
                     .editor = value,
                     .caption = label,
                     .read = [read = std::move(read)] { return QVariant(read()); },
                     .display = [value](const QVariant& now) { value->setText(now.toString()); }});
    return *this;
}

FormBuilder& FormBuilder::custom(QWidget* widget) {
    place(widget, {}, widget);
    return *this;
}
