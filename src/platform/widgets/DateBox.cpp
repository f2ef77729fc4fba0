#include "platform/widgets/DateBox.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/text/Dates.h"

namespace {

/// A small calendar sheet in the colours of the box.
QIcon calendarIcon(const QPalette& palette) {
    constexpr int side = 64;
    QPixmap sheet(side, side);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ink = palette.color(QPalette::Text);
    ink.setAlphaF(0.7F);
    painter.setPen(QPen(ink, 4));
    painter.drawRoundedRect(QRectF(8, 12, 48, 44), 6, 6);
    painter.drawLine(8, 26, 56, 26);
    painter.drawLine(20, 6, 20, 16);
    painter.drawLine(44, 6, 44, 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column) painter.drawRect(17 + column * 12, 33 + row * 11, 6, 6);
    return sheet;
}

}  // namespace

DateBox::DateBox(QWidget* parent)
    : FilteredEdit(parent),
      calendarAction_(addAction(calendarIcon(palette()), TrailingPosition)),
      wrongAction_(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), TrailingPosition)) {
    calendarAction_->setToolTip(tr("Open the calendar (F4)"));
    wrongAction_->setVisible(false);
    setMaxLength(24);
    setShownCharacters(14);
    connect(calendarAction_, &QAction::triggered, this, &DateBox::openCalendar);
    connect(this, &QLineEdit::textEdited, this, &DateBox::takeTyped);
}

void DateBox::setFormat(const QString& format) {
    format_ = format;
    if (format_.count(u'y') == 3) format_.insert(format_.indexOf(u'y'), u'y');
    if (readable_) setDate(date_);
}

void DateBox::setDate(const QDate& date) {
    date_ = date;
    setText(formatDate(date, format_));
    mark(true);
}

void DateBox::takeTyped() {
    const QString typed = text().simplified();
    if (typed == formatDate(date_, format_)) return mark(true);
    const QDate date = parseDate(typed, format_).value_or(QDate());
    // Half a date is no mistake while it is being typed: the mark comes when the box is left.
    readable_ = typed.isEmpty() || date.isValid();
    wrongAction_->setVisible(false);
    if (!readable_ || date == date_) return;
    date_ = date;
    Q_EMIT edited(date_);
}

void DateBox::change(const QDate& date) {
    if (!date.isValid() || (date == date_ && readable_)) return;
    setDate(date);
    selectAll();
    Q_EMIT edited(date_);
}

void DateBox::mark(bool readable) {
    readable_ = readable;
    wrongAction_->setVisible(!readable);
    const QString message =
        readable ? QString()
                 : tr("This is no date. Enter one such as %1.").arg(formatDate(QDate(2026, 4, 28), format_));
    wrongAction_->setToolTip(message);
    setToolTip(message);
    setAccessibleDescription(message);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    const bool alt = event->modifiers() & Qt::AltModifier;
    const int direction = event->key() == Qt::Key_Up || event->key() == Qt::Key_PageUp ? 1 : -1;
    switch (event->key()) {
        case Qt::Key_F4: return openCalendar();
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (alt) return openCalendar();
            return change(date_.addDays(direction));
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: return change(date_.addMonths(direction));
        default: FilteredEdit::keyPressEvent(event);
    }
}

void DateBox::focusOutEvent(QFocusEvent* event) {
    FilteredEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;
    if (readable_)
        setDate(date_);
    else
        mark(false);
}

void DateBox::openCalendar() {
    if (isReadOnly()) return;
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameShape(QFrame::StyledPanel);
    auto* calendar = new QCalendarWidget(popup);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    if (date_.isValid()) calendar->setSelectedDate(date_);
    auto* layout = new QVBoxLayout(popup);
    layout->setContentsMargins({});
    layout->addWidget(calendar);
    const auto pick = [this, popup](const QDate& date) {
        popup->close();
        change(date);
    };
    connect(calendar, &QCalendarWidget::activated, this, pick);
    connect(calendar, &QCalendarWidget::clicked, this, pick);
    popup->adjustSize();
    QPoint corner = mapToGlobal(rect().bottomLeft());
    const QRect screen = this->screen()->availableGeometry();
    if (corner.y() + popup->height() > screen.bottom()) corner.setY(mapToGlobal(QPoint()).y() - popup->height());
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() - popup->width())));
    popup->move(corner);
    popup->show();
    calendar->setFocus();
}
