#pragma once

#include <QDialog>
#include <QTimer>

#include "platform/dialogs/Dialogs.h"
#include "platform/report/FindText.h"
#include "platform/report/PageView.h"
#include "platform/report/Report.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace report {

/// The window in which a report is read before it is printed. The first page shows at once; the others are laid out
/// while the user reads, and the number of pages grows meanwhile.
class ReportPreview final : public QDialog {
    Q_OBJECT
public:
    /// Runs the report for the printer's paper. Raises what opening the query or reading its first rows raises.
    /// Printer and dialogs must outlive the window.
    ReportPreview(Report report, QPrinter& printer, Dialogs& dialogs, QWidget* parent = nullptr);
    ~ReportPreview() override;

private:
    QBoxLayout* makeBar();
    QLayout* makePageButtons();
    QLayout* makeZoomBox();
    QLayout* makeFindBox();
    QWidget* makePages();
    void layOutInIdleTime();
    void guarded(const std::function<void()>& work);
    void printPages();
    void goTo(int page);
    void goToLast();
    void showCurrent();
    void showCount();
    void showZoom();
    void takeZoom();
    void find(bool backwards);

    Report report_;
    QPrinter& printer_;
    Dialogs& dialogs_;
    std::unique_ptr<Paginator> pages_;
    TextPlace found_;
    int pageAfterFind_ = 0;  ///< the next find begins at a page turned to since
    QTimer idle_;
    PageView* view_ = nullptr;
    PageView* thumbnails_ = nullptr;
    QSpinBox* pageBox_ = nullptr;
    QLabel* countLabel_ = nullptr;
    QComboBox* zoomBox_ = nullptr;
    QLineEdit* findBox_ = nullptr;
    QLabel* findResult_ = nullptr;
    QList<QWidget*> backButtons_;
    QList<QWidget*> forwardButtons_;
};

}  // namespace report
