#include "platform/widgets/ListMover.h"

#include <QDrag>
#include <QDropEvent>
#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QToolButton>

#include "platform/widgets/EntryListModel.h"
#include "platform/widgets/FormLayout.h"

namespace {

constexpr char listOfOrigin[] = "application/x-kestrelmoor-list";

/// Entries that say, while they are dragged, which list they come from.
class MoverModel final : public EntryListModel {
public:
    explicit MoverModel(QWidget* list) : EntryListModel(list) {}
    QStringList mimeTypes() const override { return {QLatin1String(listOfOrigin)}; }
    QMimeData* mimeData(const QModelIndexList&) const override {
        auto* data = new QMimeData;
        data->setData(QLatin1String(listOfOrigin), parent()->objectName().toUtf8());
        return data;
    }
};

/// A list that takes what is dragged out of its counterpart. The pointer shows the way while an entry travels, and an
/// arrow down while it is over the list that will take it.
class MoverList final : public QListView {
public:
    using QListView::QListView;
    const QListView* counterpart = nullptr;
    const char* travelPicture = nullptr;
    std::function<bool()> mayDrag;
    std::function<void()> onDrop;

protected:
    void startDrag(Qt::DropActions) override {
        if (!mayDrag()) return;
        auto* drag = new QDrag(this);
        drag->setMimeData(model()->mimeData(selectedIndexes()));
        drag->setDragCursor(picture(travelPicture), Qt::IgnoreAction);
        drag->setDragCursor(picture("DragDown"), Qt::MoveAction);
        drag->exec(Qt::MoveAction);
    }
    void dragEnterEvent(QDragEnterEvent* event) override { judge(*event); }
    void dragMoveEvent(QDragMoveEvent* event) override { judge(*event); }
    void dropEvent(QDropEvent* event) override {
        judge(*event);
        if (event->isAccepted()) QMetaObject::invokeMethod(this, onDrop, Qt::QueuedConnection);
    }

private:
    QPixmap picture(const char* name) const {
        constexpr int edge = 32;
        return QIcon(QStringLiteral(":/drag/%1.svg").arg(QLatin1String(name)))
            .pixmap(QSize(edge, edge), devicePixelRatioF());
    }
    void judge(QDropEvent& event) const {
        event.setDropAction(Qt::MoveAction);
        event.setAccepted(event.mimeData()->data(QLatin1String(listOfOrigin)) == counterpart->objectName().toUtf8());
    }
};

MoverList* asMoverList(QListView* view) { return static_cast<MoverList*>(view); }

}  // namespace

ListMover::ListMover(const QString& objectName, const QString& leftTitle, const QString& rightTitle, QWidget* parent)
    : QWidget(parent), halves_{}, middle_(new QVBoxLayout) {
    Q_INIT_RESOURCE(drag);
    setObjectName(objectName);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(spacing::label);
    grid->setVerticalSpacing(spacing::label / 2);
    halves_[Left] = makeHalf(Left, leftTitle);
    halves_[Right] = makeHalf(Right, rightTitle);
    middle_->addStretch();
    middle_->addWidget(halves_[Right].button, 0, Qt::AlignHCenter);
    middle_->addWidget(halves_[Left].button, 0, Qt::AlignHCenter);
    middle_->addStretch();
    grid->addLayout(middle_, 1, 1);
    setListNames(objectName + u"Left", objectName + u"Right");
    for (const Side side : {Left, Right}) {
        MoverList* list = asMoverList(halves_[side].view);
        const Side other = side == Left ? Right : Left;
        list->counterpart = halves_[other].view;
        list->travelPicture = side == Left ? "DragRight" : "DragLeft";
        list->mayDrag = [this, side] { return mayMove(side); };
        list->onDrop = [this, other] { request(other); };
    }
    for (const Side side : {Left, Right}) setTabOrder(halves_[side].view, halves_[side].button);
    updateButtons();
}

ListMover::Half ListMover::makeHalf(Side side, const QString& title) {
    auto* grid = static_cast<QGridLayout*>(layout());
    const int column = side == Left ? 0 : 2;
    auto* label = new QLabel(title, this);
    auto* view = new MoverList(this);
    auto* model = new MoverModel(view);
    view->setAccessibleName(QString(title).remove(u'&'));
    view->setModel(model);
    view->setUniformItemSizes(true);
    view->setSpacing(2);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setDragDropMode(QAbstractItemView::DragDrop);
    view->setDefaultDropAction(Qt::MoveAction);
    view->setTextElideMode(Qt::ElideRight);
    view->installEventFilter(this);
    label->setBuddy(view);
    grid->addWidget(label, 0, column);
    grid->addWidget(view, 1, column);
    grid->setColumnStretch(column, 1);

    auto* button = new QToolButton(this);
    button->setArrowType(side == Left ? Qt::RightArrow : Qt::LeftArrow);
    const QString explanation = side == Left ? tr("Move to the list on the right") : tr("Move to the list on the left");
    button->setToolTip(explanation);
    button->setAccessibleName(explanation);
    connect(button, &QToolButton::clicked, this, [this, side] { request(side); });
    connect(view, &QListView::doubleClicked, this, [this, side] { request(side); });
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &ListMover::updateButtons);
    connect(model, &QAbstractItemModel::modelReset, this, &ListMover::updateButtons);
    return {model, view, button};
}

void ListMover::setListNames(const QString& left, const QString& right) {
    setListName(Left, left);
    setListName(Right, right);
}

void ListMover::setListName(Side side, const QString& name) {
    halves_[side].view->setObjectName(name);
    halves_[side].button->setObjectName(QString(name + u"Move"));
}

void ListMover::addHint(const QString& text) {
    auto* hint = new QLabel(text, this);
    hint->setAlignment(Qt::AlignCenter);
    hint->setTextFormat(Qt::PlainText);
    middle_->insertWidget(middle_->indexOf(halves_[Right].button), hint);
}

void ListMover::setEntries(Side side, std::vector<QString>&& entries) {
    const int before = selectedIndex(side);
    EntryListModel* model = halves_[side].model;
    model->setEntries(std::move(entries));
    if (before >= 0 && model->size() > 0)
        halves_[side].view->setCurrentIndex(model->index(std::min(before, model->size() - 1)));
}

void ListMover::moveEntry(Side from, int index, const std::function<bool(const QString&, const QString&)>& less) {
    EntryListModel* to = halves_[from == Left ? Right : Left].model;
    to->insertInOrder(entryAt(from, index), less);
    halves_[from].model->remove(index);
    updateButtons();
}

const std::vector<QString>& ListMover::entries(Side side) const { return halves_[side].model->entries(); }

int ListMover::entryCount(Side side) const { return halves_[side].model->size(); }

QString ListMover::entryAt(Side side, int index) const { return halves_[side].model->entryAt(index); }

int ListMover::selectedIndex(Side side) const { return halves_[side].view->currentIndex().row(); }

QString ListMover::selectedEntry(Side side) const { return entryAt(side, selectedIndex(side)); }

void ListMover::request(Side from) {
    if (mayMove(from)) Q_EMIT moveRequested(from, selectedIndex(from));
}

bool ListMover::mayMove(Side from) const {
    const int index = selectedIndex(from);
    return index >= 0 && (!mayMove_ || mayMove_(from, index));
}

void ListMover::updateButtons() {
    for (const Side side : {Left, Right})
        if (halves_[side].button) halves_[side].button->setEnabled(selectedIndex(side) >= 0);
}

bool ListMover::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const Side side = watched == halves_[Left].view ? Left : Right;
        const int across = side == Left ? Qt::Key_Right : Qt::Key_Left;
        if (key == across || key == Qt::Key_Return || key == Qt::Key_Enter) {
            request(side);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
