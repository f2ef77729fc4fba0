#include "platform/report/ReportPreview.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>

#include "platform/report/RunProgress.h"

namespace report {

namespace {

constexpr int idleSlice = 8;  // milliseconds
constexpr int zoomSteps[] = {50, 75, 100, 125, 150, 200, 300, 400};

QHBoxLayout* makeRow(const QStyle& style) {
    auto* row = new QHBoxLayout;
    row->setSpacing(style.pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    return row;
}

template <typename Button, typename Action>
Button* addButton(QBoxLayout* row, const QString& name, const QString& text, const QString& help, Action action) {
    auto* button = new Button;
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(help);
    button->setAccessibleName(help);
    if constexpr (std::is_same_v<Button, QPushButton>) button->setAutoDefault(false);
    QObject::connect(button, &QAbstractButton::clicked, button, action);
    row->addWidget(button);
    return button;
}

QLabel* addLabel(QBoxLayout* row, const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    row->addWidget(label);
    row->addWidget(buddy);
    return label;
}

}  // namespace

ReportPreview::ReportPreview(Report report, QPrinter& printer, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent, Qt::Window), report_(std::move(report)), printer_(printer), dialogs_(dialogs) {
    pages_ = paginate(report_, paperFor(report_.definition, printer_.pageLayout().pageSize()));
    pages_->page(0);
    setObjectName("ReportPreview");
    setWindowTitle(report_.definition.title.isEmpty() ? tr("Print Preview")
                                                      : tr("%1 - Print Preview").arg(report_.definition.title));
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    QWidget* pages = makePages();
    QBoxLayout* bar = makeBar();
    whole->addLayout(bar);
    whole->addWidget(pages, 1);
    if (bar->minimumSize().width() > screen()->availableSize().width()) bar->setDirection(QBoxLayout::TopToBottom);
    constexpr int titleBar = 40;  // of the desktop's window manager
    const QRect desktop = screen()->availableGeometry().adjusted(0, 0, 0, -titleBar);
    resize(QSize(1060, 700).boundedTo(desktop.size()));
    move(desktop.center() - rect().center());

    new QShortcut(QKeySequence::ZoomIn, this, [this] { view_->setZoom(view_->zoom() * 1.25); });
    new QShortcut(QKeySequence::ZoomOut, this, [this] { view_->setZoom(view_->zoom() / 1.25); });
    new QShortcut(QKeySequence::Find, this, [this] { findBox_->setFocus(Qt::ShortcutFocusReason); });
    new QShortcut(QKeySequence("F3"), this, [this] { find(false); });
    new QShortcut(QKeySequence("Shift+F3"), this, [this] { find(true); });
    new QShortcut(QKeySequence::Print, this, [this] { printPages(); });
    connect(view_, &PageView::currentPageChanged, this, &ReportPreview::showCurrent);
    connect(view_, &PageView::zoomChanged, this, &ReportPreview::showZoom);
    connect(thumbnails_, &PageView::pageClicked, this, &ReportPreview::goTo);
    connect(&idle_, &QTimer::timeout, this, &ReportPreview::layOutInIdleTime);
    idle_.start(0);
    showCount();
    showZoom();
    view_->setFocus();
}

ReportPreview::~ReportPreview() = default;

QWidget* ReportPreview::makePages() {
    auto* splitter = new QSplitter;
    thumbnails_ = new PageView(*pages_, PageView::Use::Thumbnails);
    thumbnails_->setObjectName("thumbnails");
    thumbnails_->setAccessibleName(tr("Thumbnails of the pages"));
    thumbnails_->setMinimumWidth(110);
    view_ = new PageView(*pages_, PageView::Use::Reading);
    view_->setObjectName("pages");
    view_->setAccessibleName(tr("Pages"));
    splitter->addWidget(thumbnails_);
    splitter->addWidget(view_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({150, 910});
    splitter->setCollapsible(1, false);
    return splitter;
}

QBoxLayout* ReportPreview::makeBar() {
    const int space = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
    auto* pages = new QHBoxLayout;
    pages->setSpacing(space * 3);
    addButton<QPushButton>(pages, "cmdPrint", tr("&Print..."), tr("Print this report (Ctrl+P)"),
                           [this] { printPages(); });
    pages->addLayout(makePageButtons());
    pages->addLayout(makeZoomBox());
    pages->addStretch();
    auto* text = new QHBoxLayout;
    text->setSpacing(space * 3);
    text->addLayout(makeFindBox(), 1);
    addButton<QPushButton>(text, "cmdClose", tr("&Close"), tr("Close the preview (Esc)"), [this] { reject(); });
    auto* bar = new QBoxLayout(QBoxLayout::LeftToRight);
    bar->setContentsMargins(space * 2, space, space * 2, space);
    bar->setSpacing(space * 2);
    bar->addLayout(pages);
    bar->addLayout(text, 1);
    return bar;
}

QLayout* ReportPreview::makePageButtons() {
    auto* row = makeRow(*style());
    const auto turn = [&](const QString& name, const QString& sign, const QString& help, const QString& keys,
                          auto action) {
        new QShortcut(QKeySequence(keys), this, action);  // at once, where a button's own would first show it pressed
        return addButton<QToolButton>(row, name, sign, tr("%1 (%2)").arg(help, keys), action);
    };
    backButtons_ << turn("cmdFirst", QStringLiteral("«"), tr("First page"), "Ctrl+Home", [this] { goTo(0); });
    backButtons_ << turn("cmdPrevious", QStringLiteral("‹"), tr("Previous page"), "Alt+Left",
                         [this] { goTo(view_->currentPage() - 1); });
    pageBox_ = new QSpinBox;
    pageBox_->setObjectName("pageNumber");
    pageBox_->setAccessibleName(tr("Page number"));
    pageBox_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    pageBox_->setAlignment(Qt::AlignRight);
    pageBox_->setKeyboardTracking(false);
    pageBox_->setRange(1, 1);
    pageBox_->setFixedWidth(fontMetrics().horizontalAdvance("00000") + 16);
    connect(pageBox_, &QSpinBox::valueChanged, this, [this](int number) { goTo(number - 1); });
    addLabel(row, tr("Pa&ge"), pageBox_);
    countLabel_ = new QLabel;
    countLabel_->setObjectName("pageCount");
    countLabel_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("of %1").arg("000...")));
    row->addWidget(countLabel_);
    forwardButtons_ << turn("cmdNext", QStringLiteral("›"), tr("Next page"), "Alt+Right",
                            [this] { goTo(view_->currentPage() + 1); });
    forwardButtons_ << turn("cmdLast", QStringLiteral("»"), tr("Last page"), "Ctrl+End", [this] { goToLast(); });
    return row;
}

QLayout* ReportPreview::makeZoomBox() {
    auto* row = makeRow(*style());
    zoomBox_ = new QComboBox;
    zoomBox_->setObjectName("zoom");
    zoomBox_->setEditable(true);
    zoomBox_->setInsertPolicy(QComboBox::NoInsert);
    zoomBox_->addItems({tr("Fit width"), tr("Fit page")});
    for (const int percent : zoomSteps) zoomBox_->addItem(tr("%1%").arg(percent));
    connect(zoomBox_, &QComboBox::activated, this, &ReportPreview::takeZoom);
    connect(zoomBox_->lineEdit(), &QLineEdit::editingFinished, this, &ReportPreview::takeZoom);
    addLabel(row, tr("&Zoom"), zoomBox_);
    auto* thumbnails =
        addButton<QPushButton>(row, "cmdThumbnails", tr("&Thumbnails"), tr("Show or hide the thumbnails"),
                               [this](bool on) { thumbnails_->setVisible(on); });
    thumbnails->setCheckable(true);
    thumbnails->setChecked(true);
    return row;
}

QLayout* ReportPreview::makeFindBox() {
    auto* row = makeRow(*style());
    findBox_ = new QLineEdit;
    findBox_->setObjectName("findText");
    findBox_->setClearButtonEnabled(true);
    findBox_->setMinimumWidth(130);
    findBox_->setMaximumWidth(220);
    connect(findBox_, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(findBox_, &QLineEdit::textChanged, this, [this](const QString& text) {
        findResult_->clear();
        if (text.isEmpty()) view_->setMark(-1, {});
    });
    addLabel(row, tr("&Find"), findBox_);
    addButton<QToolButton>(row, "cmdFindPrevious", QStringLiteral("‹"), tr("Find the text before this (Shift+F3)"),
                           [this] { find(true); });
    addButton<QToolButton>(row, "cmdFindNext", QStringLiteral("›"), tr("Find the next such text (F3)"),
                           [this] { find(false); });
    findResult_ = new QLabel;
    findResult_->setObjectName("findResult");
    row->addWidget(findResult_);
    row->addStretch();
    return row;
}

/// A little work at a time, so that the window answers in between.
void ReportPreview::layOutInIdleTime() {
    guarded([this] {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < idleSlice && pages_->layOutMore()) {
        }
        showCount();
        if (pages_->isComplete()) idle_.stop();
    });
}

/// What fails while pages are laid out or printed is told, once; the pages there are stay.
void ReportPreview::guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& failure) {
        idle_.stop();
        dialogs_.error(windowTitle(), QString::fromUtf8(failure.what()));
    }
}

void ReportPreview::printPages() {
    guarded([this] {
        QPrintDialog dialog(&printer_, this);
        dialog.setObjectName("printDialog");
        dialog.setOption(QAbstractPrintDialog::PrintPageRange);
        if (dialogs_.showModal(dialog) != QDialog::Accepted) return;
        RunProgress progress(this, report_.definition.title, RunProgress::Counts::Pages);
        print(printer_, report_, std::ref(progress));
    });
}

void ReportPreview::goTo(int page) {
    guarded([&] { view_->goTo(std::max(0, page)); });
    showCurrent();
}

void ReportPreview::goToLast() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    guarded([this] { pages_->layOutAll(); });
    QApplication::restoreOverrideCursor();
    goTo(pages_->pageCount() - 1);
    showCount();
}

void ReportPreview::showCurrent() {
    const int current = view_->currentPage();
    const QSignalBlocker quiet(pageBox_);
    pageBox_->setRange(1, std::max(1, pages_->pageCount()));
    pageBox_->setValue(current + 1);
    thumbnails_->setSelected(current);
    for (QWidget* button : backButtons_) button->setEnabled(current > 0);
    const bool more = !pages_->isComplete() || current + 1 < pages_->pageCount();
    for (QWidget* button : forwardButtons_) button->setEnabled(more);
}

void ReportPreview::showCount() {
    const QString count = locale().toString(pages_->pageCount());
    countLabel_->setText(pages_->isComplete() ? tr("of %1").arg(count) : tr("of %1...").arg(count));
    view_->pagesAdded();
    thumbnails_->pagesAdded();
    showCurrent();
}

void ReportPreview::showZoom() {
    const QSignalBlocker quiet(zoomBox_);
    switch (view_->fit()) {
        case PageView::Fit::Width: zoomBox_->setCurrentIndex(0); break;
        case PageView::Fit::Page: zoomBox_->setCurrentIndex(1); break;
        case PageView::Fit::Zoom: zoomBox_->setEditText(tr("%1%").arg(qRound(view_->zoom() * 100))); break;
    }
}

void ReportPreview::takeZoom() {
    const int fit = zoomBox_->findText(zoomBox_->currentText());
    if (fit == 0 || fit == 1) {
        view_->setFit(fit == 0 ? PageView::Fit::Width : PageView::Fit::Page);
        return;
    }
    QString text = zoomBox_->currentText();
    bool ok = false;
    const double percent = text.remove(u'%').trimmed().toDouble(&ok);
    if (ok)
        view_->setZoom(percent / 100);
    else
        showZoom();
}

void ReportPreview::find(bool backwards) {
    guarded([&] {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        const bool turnedSince = view_->currentPage() != pageAfterFind_;
        const TextPlace from = turnedSince ? TextPlace{.page = view_->currentPage()} : found_;
        const auto place = findText(*pages_, findBox_->text(), from, backwards);
        showCount();
        findResult_->setText(place || findBox_->text().isEmpty() ? QString() : tr("Not found"));
        if (!place) return view_->setMark(-1, {});
        found_ = *place;
        view_->setMark(place->page, areasOf(*pages_, *pages_->page(place->page), place->start, place->length));
        pageAfterFind_ = view_->currentPage();
        showCurrent();
    });
}

}  // namespace report
