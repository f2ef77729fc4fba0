#include "platform/widgets/Form.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QTabWidget>
#include <algorithm>

#include "platform/widgets/DateBox.h"

Form::Form(QWidget* parent) : QWidget(parent) {}

void Form::addField(Field field) {
    if (field.write) field.editor->installEventFilter(this);
    fields_.push_back({std::move(field)});
}

void Form::addPage(QWidget* page) { pages_.push_back(page); }

void Form::setTabs(QTabWidget* tabs) {
    connect(tabs, &QTabWidget::currentChanged, this, [this] {
        if (!goingToField_) Q_EMIT tabPicked();
    });
}

Form::Kept* Form::find(const QString& name) {
    const auto found =
        std::find_if(fields_.begin(), fields_.end(), [&](const Kept& field) { return field.name == name; });
    return found == fields_.end() ? nullptr : &*found;
}

void Form::fill(Kept& field, const QVariant& value) {
    const QScopedValueRollback loading(loading_, true);
    field.display(value);
    field.shown = value;
    field.edited = false;
}

void Form::refresh() {
    for (Kept& field : fields_) {
        field.recorded = field.read();
        fill(field, field.recorded);
    }
}

void Form::display(const QString& name, const QVariant& value) {
    if (Kept* field = find(name)) fill(*field, value);
}

void Form::edit(const QString& name, const QVariant& value) {
    Kept* field = find(name);
    if (loading_ || !field || field->shown == value) return;
    field->shown = value;
    field->edited = true;
    field->write(value);
    field->recorded = field->read();
    Q_EMIT changed(name);
    for (Kept& other : fields_) {
        if (other.name == name) continue;
        if (const QVariant now = other.read(); now != other.recorded) {
            other.recorded = now;
            fill(other, now);
        }
    }
}

void Form::leave(const QString& name) {
    // The field shows its value in the form it is kept in: a date in full, money with its cents.
    if (Kept* field = find(name); field && field->edited && (!field->isReadable || field->isReadable()))
        fill(*field, field->read());
    Q_EMIT left(name);
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            QMetaObject::invokeMethod(
                this, [this, name = watched->objectName()] { leave(name); }, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

void Form::focusField(const QString& name) {
    auto* editor = findChild<QWidget*>(name);
    if (!editor) return;
    const QScopedValueRollback going(goingToField_, true);
    for (QWidget* around = editor->parentWidget(); around; around = around->parentWidget()) {
        auto* tabs = qobject_cast<QTabWidget*>(around);
        for (int index = 0; tabs && index < tabs->count(); ++index)
            if (tabs->widget(index)->isAncestorOf(editor)) tabs->setCurrentIndex(index);
    }
    editor->setFocus(Qt::OtherFocusReason);
    // Said here too: a window that has yet to come back from behind a box tells its fields nothing of the focus now.
    auto* line = qobject_cast<QLineEdit*>(editor);
    if (auto* combo = qobject_cast<QComboBox*>(editor)) line = combo->lineEdit();
    if (line) line->selectAll();
    for (QWidget* around = editor->parentWidget(); around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(editor);
}

void Form::setFieldsEnabled(bool enabled) {
    for (QWidget* page : pages_) page->setEnabled(enabled);
}

void Form::setFieldVisible(const QString& name, bool visible) {
    const Kept* field = find(name);
    if (!field) return;
    field->editor->setVisible(visible);
    if (field->caption) field->caption->setVisible(visible);
}

void Form::setCaption(const QString& name, const QString& caption) {
    const Kept* field = find(name);
    if (!field || !field->caption) return;
    field->caption->setText(QString(caption).replace(u'&', QStringLiteral("&&")));
    field->editor->setAccessibleName(caption);
}

void Form::setInk(const QString& name, const QColor& ink) {
    const Kept* field = find(name);
    if (!field) return;
    QPalette colours;
    if (ink.isValid()) colours.setColor(QPalette::WindowText, ink);
    field->editor->setPalette(colours);
    if (field->caption) field->caption->setPalette(colours);
}

void Form::setDateFormat(const QString& format) {
    for (auto* box : findChildren<DateBox*>()) box->setFormat(format);
}

QString Form::unreadableField() const {
    for (const Kept& field : fields_)
        if (field.isReadable && !field.isReadable()) return field.name;
    return {};
}
