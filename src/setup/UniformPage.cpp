#include "setup/UniformPage.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/widgets/FormLayout.h"
#include "setup/LookupPane.h"
#include "setup/clsUniform.h"

namespace {

/// What differs from garment to garment.
struct GarmentText {
    Garment garment;
    QString tag;    ///< "PantSize": of its table, its boxes and its buttons
    QString title;  ///< "Pants Size"
    QString searchCaption;
};

LookupPane<UniformSize>::Lookup lookupOf(const GarmentText& text, const QString& checkTitle) {
    const QString& tag = text.tag;
    return {.text = {.tag = tag,
                     .caption = text.title,
                     .searchName = u"cbo" + tag + u"SearchList",
                     .searchCaption = text.searchCaption,
                     .moveName = u"cmd" + tag + u"Move",
                     .listQuery = u"SELECT *, ([" + tag + u"Text]) as Name FROM tbl" + tag +
                                  u" WHERE [DeletedFlag] = False ORDER BY [" + tag + u"Text]",
                     .checkTitle = checkTitle,
                     .missingText = UniformPage::tr("Error!  %1 not found in Search List").arg(text.title),
                     .searchCharacters = 20,
                     .stepsOnly = true},
            .find = &UniformSize::FindSizeRecord,
            .key = &UniformSize::SizeText,
            .boxes = {{u"txt" + tag + u"Text", UniformPage::tr("Description *"), &UniformSize::SizeText,
                       UniformPage::tr("The %1 Description is a required entry.").arg(text.title)},
                      {u"txt" + tag, UniformPage::tr("Designator *"), &UniformSize::Size,
                       UniformPage::tr("The %1 Designator is a required entry.").arg(text.title)}},
            .sideBySide = true,
            .statusName = [](const UniformSize& size) { return QString(size.Size() + u" - " + size.SizeText()); }};
}

/// Inside the pane, so that they wait with it while another one is edited. Their keys, those of all tabs, go to the
/// garment that has the focus.
void addButtons(RecordPane& pane, const QString& tag, const QString& title) {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    const auto button = [&](const char* what, const QString& caption, void (RecordPane::*press)()) {
        auto* made = new QPushButton(caption);
        made->setObjectName(u"cmd" + QLatin1String(what) + tag);
        made->setAccessibleName(QString(caption).remove(u'&') + u' ' + title);
        made->setAutoDefault(false);
        auto* key = new QShortcut(made->shortcut(), &pane);
        key->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(key, &QShortcut::activated, made, [made] { made->click(); });
        made->setShortcut({});
        QObject::connect(made, &QPushButton::clicked, &pane, press);
        buttons->addWidget(made);
        return made;
    };
    auto* add = button("Add", UniformPage::tr("Add &New"), &RecordPane::addNew);
    auto* remove = button("Delete", UniformPage::tr("De&lete"), &RecordPane::remove);
    static_cast<QVBoxLayout*>(pane.layout())->addLayout(buttons);
    const auto showState = [&pane, add, remove] {
        add->setEnabled(!pane.isEditing());
        remove->setEnabled(pane.canDelete());
    };
    QObject::connect(&pane, &RecordPane::stateChanged, add, showState);
    showState();
}

}  // namespace

UniformPage::UniformPage(Program& program, const QString& checkTitle) {
    auto* outside = new QVBoxLayout(this);
    outside->setContentsMargins({});
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    outside->addWidget(area);
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    auto* row = new ColumnRow(content);
    layout->addWidget(row);
    layout->addStretch(1);
    QVBoxLayout* columns[2];
    for (QVBoxLayout*& column : columns) {
        auto* widget = new QWidget(row);
        column = new QVBoxLayout(widget);
        column->setContentsMargins({});
        column->setSpacing(spacing::group);
        row->addColumn(widget, 1);
    }
    const GarmentText garments[] = {
        {Garment::Pant, "PantSize", tr("Pants Size"), tr("Current &Pants Size")},
        {Garment::Shirt, "ShirtSize", tr("Shirt Size"), tr("Current Sh&irt Size")},
        {Garment::Hat, "HatSize", tr("Hat Size"), tr("Current H&at Size")},
        {Garment::Socks, "SocksSize", tr("Socks Size"), tr("Current Soc&ks Size")},
        {Garment::Shoe, "ShoeSize", tr("Shoe Size"), tr("Current Shoe Si&ze")},
    };
    for (const GarmentText& text : garments) {
        auto* pane = new LookupPane<UniformSize>(program, lookupOf(text, checkTitle), text.garment);
        pane->layout()->setContentsMargins({});
        pane->layout()->setSpacing(spacing::line);
        auto* lines = pane->findChild<QScrollArea*>();
        const auto* box = pane->findChild<QLineEdit*>(u"txt" + text.tag);
        lines->setFixedHeight(box->sizeHint().height() + spacing::line);  // one line; the page scrolls instead
        addButtons(*pane, text.tag, text.title);
        auto* frame = new QGroupBox(text.title);
        (new QVBoxLayout(frame))->addWidget(pane);
        frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        columns[panes_.size() % 2]->addWidget(frame);
        panes_.push_back(pane);
    }
    for (QVBoxLayout* column : columns) column->addStretch(1);
    area->setWidget(content);
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}
