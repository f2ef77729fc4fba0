#include "league/frmFieldAvailability.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>

#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/DateBox.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/MaskedEdit.h"

namespace {

template <class Widget>
Widget* named(Widget* widget, const char* name, const QString& caption) {
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(QString(caption).remove(u'&'));
    return widget;
}

QPushButton* button(const char* name, const QString& caption) {
    auto* made = named(new QPushButton(caption), name, caption);
    made->setAutoDefault(false);
    return made;
}

}  // namespace

frmFieldAvailability::frmFieldAvailability(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFieldAvailability"));
    setWindowTitle(tr("Kestrelmoor - Field Availability"));
    auto* columns = new ColumnRow(this);
    auto* left = new QWidget(columns);
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins({});
    leftLayout->setSpacing(spacing::group);
    leftLayout->addWidget(setFrame());
    leftLayout->addWidget(copyFrame());
    leftLayout->addStretch(1);
    columns->addColumn(left, 1);
    columns->addColumn(gridBox(), 1);
    auto* close = button("cmdClose", tr("&Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addWidget(columns, 1);
    layout->addLayout(buttons);
    resize(860, 560);
}

QGroupBox* frmFieldAvailability::setFrame() {
    auto* frame = new QGroupBox(tr("Set Field Availability"));
    auto* days = new QGridLayout;
    constexpr int daysOnALine = 4;
    for (int day = 0; day < 7; ++day) {
        const QString name = QLocale::c().dayName(day == 0 ? Qt::Sunday : day);
        auto* box = new QCheckBox(name);
        box->setObjectName(u"chk" + name);
        days->addWidget(box, day / daysOnALine, day % daysOnALine);
    }
    auto* hint = new QLabel(tr("Select a single (Start) date or a Start Date and End Date for a range."));
    hint->setWordWrap(true);
    auto* fields = new QFormLayout;
    fields->setHorizontalSpacing(spacing::label);
    fields->setVerticalSpacing(spacing::line);
    fields->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    fields->addRow(tr("&Start Date"), named(new DateBox, "dtpStartDate", tr("Start Date")));
    fields->addRow(tr("&End Date"), named(new DateBox, "dtpEndDate", tr("End Date")));
    fields->addRow(tr("&Time Slot"),
                   named(new MaskedEdit(QStringLiteral("##:## ??")), "mskedTimeSlot", tr("Time Slot")));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("cmdAddToList", tr("&Add To List")));
    buttons->addWidget(button("cmdDeleteDateTime", tr("&Delete Date/Time")));
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(spacing::line);
    layout->addLayout(days);
    layout->addWidget(hint);
    layout->addLayout(fields);
    layout->addLayout(buttons);
    return frame;
}

QGroupBox* frmFieldAvailability::copyFrame() {
    auto* frame = new QGroupBox(tr("Copy Field Availability"));
    auto* caption = new QLabel(tr("Copy From &Field..."));
    auto* from = named(new ChoiceBox, "cboCopyFromField", tr("Copy From Field..."));
    caption->setBuddy(from);
    auto* layout = new QGridLayout(frame);
    layout->addWidget(caption, 0, 0, 1, 2);
    layout->addWidget(from, 1, 0);
    layout->addWidget(button("cmdCopyFieldData", tr("C&opy Field Data")), 1, 1);
    layout->setColumnStretch(0, 1);
    return frame;
}

QWidget* frmFieldAvailability::gridBox() {
    auto* box = new QWidget;
    auto* calendar = named(new QCalendarWidget, "calFieldAvailability", tr("Calendar"));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setFirstDayOfWeek(Qt::Sunday);
    auto* caption = new QLabel(tr("Dates and Times A&vailable"));
    auto* grid = named(new QTableWidget(0, 2), "flxGridAvailability", caption->text());
    grid->setHorizontalHeaderLabels({tr("Date"), tr("Time")});
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->horizontalHeader()->setHighlightSections(false);
    grid->verticalHeader()->hide();
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setTabKeyNavigation(false);
    caption->setBuddy(grid);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::label);
    layout->addWidget(calendar);
    layout->addWidget(caption);
    layout->addWidget(grid, 1);
    return box;
}
