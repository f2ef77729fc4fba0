#pragma once

#include <QStringList>

#include "platform/widgets/Binding.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/Form.h"
#include "platform/widgets/KeyFilter.h"

class QBoxLayout;
class QScrollArea;
class QTabWidget;
class ColumnRow;
class PairGrid;

/// Lays a form out as it is declared, from the top: tabs, columns, frames, and in a frame one line for each field.
/// A caption holds its access key behind '&'. Fields stand in as many pairs of caption and field side by side as the
/// frame has; the tab order is the order of the declaration; a field's width follows from the length of its value.
///
///     FormBuilder builder(form);
///     builder.frame(tr("Person"))
///         .text("txtLastName", tr("&Last Name *"), player.LastName, FilterTextFull)
///         .phone("mskedPhoneArea", "mskedPhone", tr("&Phone"), player.PhoneArea, player.Phone);
class FormBuilder {
public:
    explicit FormBuilder(Form* form);

    /// Begins a page of the form's tabs; what follows stands on it.
    FormBuilder& tab(const QString& title);
    /// A page of the form's tabs that is one widget of the caller's own and takes all the room there is.
    FormBuilder& tab(const QString& title, QWidget* content);
    /// Begins a column beside the one before.
    FormBuilder& column(int weight = 1);
    /// What follows stands below all columns so far, over the whole width.
    FormBuilder& below();
    /// Begins a frame with so many pairs of caption and field on a line. Without a title it is only a group.
    FormBuilder& frame(const QString& title, int pairs = 2);
    /// The next field begins a new line.
    FormBuilder& row();
    /// The next field takes the room of so many pairs.
    FormBuilder& span(int pairs);

    FormBuilder& text(const QString& name, const QString& caption, Binding value, KeyFilter filter = {});
    FormBuilder& masked(const QString& name, const QString& caption, const QString& mask, Binding value);
    /// Area and number; the captions belong to the area box.
    FormBuilder& phone(const QString& areaName, const QString& name, const QString& caption, Binding area,
                       Binding number);
    /// An amount: shown as money, kept as typed.
    FormBuilder& money(const QString& name, const QString& caption, Binding value);
    FormBuilder& choice(const QString& name, const QString& caption, Binding value, const QStringList& entries,
                        ChoiceBox::Options options = ChoiceBox::EmptyFirst, KeyFilter filter = {});
    FormBuilder& date(const QString& name, const QString& caption, DateBinding value);
    FormBuilder& check(const QString& name, const QString& caption, FlagBinding value);
    /// The next two fields share one place behind this caption.
    FormBuilder& together(const QString& caption);
    /// One of a few answers side by side, by its index.
    FormBuilder& options(const QString& name, const QString& caption, const QStringList& answers, IndexBinding value);
    FormBuilder& yesNo(const QString& name, const QString& caption, FlagBinding isYes);
    FormBuilder& comments(const QString& name, const QString& caption, Binding value, KeyFilter filter = {});
    /// A text that is only shown.
    FormBuilder& shown(const QString& name, const QString& caption, std::function<QString()> read, int characters = 20);
    /// A widget of the caller's own on the rest of the line, such as a button.
    FormBuilder& custom(QWidget* widget);

private:
    void addTab(const QString& title, QWidget* content);
    void page(QWidget* content);
    QWidget* scrolled(QScrollArea* area);
    QWidget* named(QWidget* editor, const QString& name, const QString& caption);
    QLabel* place(QWidget* widget, const QString& caption, QWidget* buddy);
    template <class Show>
    void add(const QString& name, QWidget* editor, QLabel* caption, const Binding& value, Show show);
    template <class Edit>
    void addTextBox(const QString& name, Edit* editor, QLabel* caption, const Binding& value);

    Form* form_;
    QTabWidget* tabs_ = nullptr;
    QBoxLayout* page_ = nullptr;
    ColumnRow* columns_ = nullptr;
    QBoxLayout* column_ = nullptr;
    PairGrid* grid_ = nullptr;
    int span_ = 1;
    bool beginsLine_ = false;
    QBoxLayout* together_ = nullptr;
    int togetherLeft_ = 0;
    QWidget* last_ = nullptr;
};
