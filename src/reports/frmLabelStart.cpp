#include "reports/frmLabelStart.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

#include "platform/report/ReportDefinition.h"
#include "platform/widgets/FormLayout.h"

namespace {

/// A label of the sheet; the arrow keys go to the ones above and below it as well.
class LabelButton final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const int rows = event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
        if (rows == 0) return QPushButton::keyPressEvent(event);
        const auto labels = parentWidget()->findChildren<QPushButton*>(QRegularExpression("^cmdLabel"));
        const qsizetype next = labels.indexOf(this) + rows * report::LabelSheet().columns;
        if (next >= 0 && next < labels.size()) labels[next]->setFocus();
    }
};

}  // namespace

frmLabelStart::frmLabelStart() {
    setObjectName("frmLabelStart");
    setWindowTitle(tr("Mailing Label Start"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addWidget(new QLabel(tr("On which label of the sheet is printing to begin?")));
    auto* sheet = new QGridLayout;
    sheet->setHorizontalSpacing(spacing::label);
    sheet->setVerticalSpacing(spacing::label / 2);
    const report::LabelSheet shape;
    for (int label = 0; label < shape.columns * shape.rows; ++label) {
        auto* button = new LabelButton(tr("Label %1").arg(label + 1));
        button->setObjectName(QStringLiteral("cmdLabel%1").arg(label));
        button->setMinimumWidth(128);
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, label] {
            skipped_ = label;
            accept();
        });
        sheet->addWidget(button, label / shape.columns, label % shape.columns);
    }
    layout->addLayout(sheet);
    auto* cancel = new QPushButton(tr("&Cancel"));
    cancel->setObjectName("cmdCancel");
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
