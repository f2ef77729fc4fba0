#pragma once

#include <QDate>

#include "platform/widgets/FilteredEdit.h"

/// A date, typed or taken from a calendar. What cannot be read as a date stays as typed, is marked, and leaves the
/// date as it was; a date that was only shown never changes. Up and Down step a day, Page Up and Page Down a month,
/// F4 or Alt+Down opens the calendar.
class DateBox final : public FilteredEdit {
    Q_OBJECT

public:
    explicit DateBox(QWidget* parent = nullptr);

    /// A display format in Qt's letters, such as "MM/dd/yyyy"; a year of three letters counts as one of four.
    void setFormat(const QString& format);
    /// A null date empties the box.
    void setDate(const QDate& date);
    /// The last date shown, typed or picked; null when the box was emptied.
    QDate date() const { return date_; }
    /// False while the box holds a text that is no date.
    bool isReadable() const { return readable_; }

Q_SIGNALS:
    /// The user typed or picked a date, or emptied the box (null).
    void edited(const QDate& date);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void takeTyped();
    void change(const QDate& date);
    void openCalendar();
    void mark(bool readable);

    QString format_ = QStringLiteral("MM/dd/yyyy");
    QDate date_;
    QAction* calendarAction_;
    QAction* wrongAction_;
    bool readable_ = true;
};
