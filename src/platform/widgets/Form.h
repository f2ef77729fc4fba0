#pragma once

#include <QColor>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <vector>

class QLabel;
class QTabWidget;

/// A form that is filled from the values its fields are bound to and writes each user's edit back at once. A
/// FormBuilder lays it out. Editors are children with the object names of their fields: findChild() gives them.
class Form : public QWidget {
    Q_OBJECT

public:
    explicit Form(QWidget* parent = nullptr);

    /// Fills all fields from their values. Writes nothing and tells nobody.
    void refresh();
    /// Shows a value in a field and leaves the bound value as it is, until the user edits the field.
    void display(const QString& name, const QVariant& value);
    /// Whether fields are being filled, so that what they show is nobody's edit.
    bool isLoading() const { return loading_; }

    /// Brings the field's tab forward, in every tab widget around it, and puts the cursor into it.
    void focusField(const QString& name);
    /// Lets the user edit, or only look. Tabs can be changed all the same.
    void setFieldsEnabled(bool enabled);
    /// Hides a field with its caption, or shows it again.
    void setFieldVisible(const QString& name, bool visible);
    /// Gives a field another caption, such as one its user chose; an '&' in it is no access key.
    void setCaption(const QString& name, const QString& caption);
    /// Colours the caption and the text of a field; without a colour they have the usual one.
    void setInk(const QString& name, const QColor& ink);
    void setDateFormat(const QString& format);
    /// The first field whose text cannot be taken for a value, such as a wrong date; empty when there is none.
    QString unreadableField() const;

    /// One field as the builder declares it. `write` is empty for a field that only shows.
    struct Field {
        QString name;
        QWidget* editor = nullptr;
        QLabel* caption = nullptr;
        std::function<QVariant()> read = {};
        std::function<void(const QVariant&)> write = {};
        std::function<void(const QVariant&)> display = {};
        std::function<bool()> isReadable = {};
    };
    void addField(Field field);
    /// A widget whose content setFieldsEnabled() switches.
    void addPage(QWidget* page);
    /// The form's tabs, whose changes it tells.
    void setTabs(QTabWidget* tabs);
    /// The user edited the field: writes the value, tells of it, and refills the other fields whose values changed by
    /// it.
    void edit(const QString& name, const QVariant& value);

Q_SIGNALS:
    /// The user edited this field; its value is written.
    void changed(const QString& name);
    /// The user left this field. The focus has arrived elsewhere and may be called back.
    void left(const QString& name);
    /// The user brought another tab of the form forward.
    void tabPicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Kept : Field {
        QVariant shown{};     ///< what the field displays
        QVariant recorded{};  ///< what its value was when last looked at
        bool edited = false;  ///< since it was last filled
    };

    Kept* find(const QString& name);
    void fill(Kept& field, const QVariant& value);
    void leave(const QString& name);

    std::vector<Kept> fields_;
    std::vector<QWidget*> pages_;
    bool loading_ = false;
    bool goingToField_ = false;
};
