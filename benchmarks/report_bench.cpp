#include <malloc.h>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSpinBox>
#include <QTemporaryDir>
#include <array>

#include "Comparison.h"
#include "platform/report/FontBook.h"
#include "platform/report/Report.h"
#include "platform/report/ReportPreview.h"
#include "support/QuietDialogs.h"

// A long list of six columns, written to each format beside a loop that writes the same without our engine, and read in
// the preview.

namespace {

using namespace report;

constexpr int lines = 100000;
constexpr int runs = 5;
const QStringList columnNames{"Last", "First", "Address", "City", "Area", "Phone", "Born", "Paid"};

/// Rows that cost nothing to read.
class MadeUpRows final : public RowSource {
public:
    MadeUpRows() {
        for (int index = 0; index < pool; ++index) {
            const QString number = QString::number(index);
            last_.append("Featherstone" + number);
            first_.append("Christopher" + QString::number(index % 97));
            address_.append(QString::number(100 + index * 7) + " Northwest Elm Street");
            city_.append("Springfield " + QString::number(index % 31));
            phone_.append(QString("555-%1").arg(index, 4, 10, QLatin1Char('0')));
            born_.append(QDate(2010, 1, 1).addDays(index).toString(Qt::ISODate));
            paid_.append(QString::number(index * 1.25, 'f', 2));
        }
    }
    int column(const QString& name) const override { return int(columnNames.indexOf(name)); }
    int columnCount() const override { return int(columnNames.size()); }
    bool next() override { return ++row_ < lines; }
    QVariant value(int column) const override {
        switch (column) {
            case 0: return last_[row_ % pool];
            case 1: return first_[row_ / 7 % pool];
            case 2: return address_[row_ / 3 % pool];
            case 3: return city_[row_ % pool];
            case 4: return area_;
            case 5: return phone_[row_ / 11 % pool];
            case 6: return born_[row_ % pool];
            default: return paid_[row_ / 5 % pool];
        }
    }

private:
    static constexpr int pool = 2003;
    QStringList last_, first_, address_, city_, phone_, born_, paid_;
    QString area_ = "503";
    int row_ = -1;
};

Report longList() {
    ReportDefinition definition;
    definition.title = "Active Player List";
    definition.organization = "Bracken Vale";
    definition.footer = "Active Player List";
    definition.query.text = "players";
    definition.columns = {{"Player Name", lastFirst("Last", "First"), 22},
                          {"Address", column("Address"), 22},
                          {"City", column("City"), 12},
                          {"Phone", phone("Area", "Phone"), 12},
                          {"Birth Date", date("Born"), 9, Alignment::Right},
                          {"Paid", money("Paid"), 9}};
    return {definition, [](const Query&) { return std::make_unique<MadeUpRows>(); }};
}

/// The texts of a row's six cells, as the list prints them.
std::array<QString, 6> textsOf(const MadeUpRows& rows) {
    const auto text = [&](int column) { return rows.value(column).toString(); };
    return {QString(text(0) % ", " % text(1)),
            text(2),
            text(3),
            phoneText(text(4), text(5)),
            formatted(rows.value(6), Format::Date),
            formatted(rows.value(7), Format::Money)};
}

/// One drawText for each cell, as many rows to the page as our pages hold.
void barePdf(const QString& path, int rowsOnPage) {
    QPdfWriter writer(path);
    writer.setResolution(unitsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()));
    QPainter painter(&writer);
    QFont font(families(Typeface::List));
    font.setPointSizeF(9);
    painter.setFont(font);
    const auto& columns = longList().definition.columns;
    MadeUpRows rows;
    for (int row = 0; rows.next(); ++row) {
        const int place = row % rowsOnPage;
        if (row > 0 && place == 0) writer.newPage();
        double x = 360;
        size_t cell = 0;
        for (const QString& text : textsOf(rows)) {
            const double width = 5400 * columns[cell].share / 86;
            painter.drawText(QRectF(x, 900 + place * 130, width, 130), cell > 3 ? Qt::AlignRight : Qt::AlignLeft, text);
            x += width;
            ++cell;
        }
    }
}

/// The lines of our own file between two marks, cut at the cells: what a loop has to write around each text.
class BareLoop {
public:
    BareLoop(const QString& ours, const QByteArray& firstText) {
        QFile file(ours);
        if (!file.open(QIODevice::ReadOnly)) qFatal("The report is missing.");
        const QByteArray all = file.readAll();
        MadeUpRows rows;
        rows.next();
        qsizetype at = all.indexOf(firstText);
        at = all.lastIndexOf('\n', all.lastIndexOf(rowStart(all), at)) + 1;
        head_ = all.left(at);
        for (const QString& text : textsOf(rows)) {
            const qsizetype start = all.indexOf(text.toUtf8(), at);
            around_.append(all.mid(at, start - at));
            at = start + text.toUtf8().size();
        }
        around_.append(all.mid(at, all.indexOf(nextRow(all), at) - at));
    }

    void write(const QString& path, bool html) const {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) qFatal("The file cannot be written.");
        file.write(head_);
        MadeUpRows rows;
        while (rows.next()) {
            QByteArray line;
            qsizetype cell = 0;
            for (const QString& text : textsOf(rows)) {
                line += around_[cell++];
                line += html ? text.toHtmlEscaped().toUtf8() : escapedRtf(text);
            }
            line += around_[cell];
            file.write(line);
        }
    }

private:
    static QByteArray rowStart(const QByteArray& all) { return all.startsWith('{') ? "\\trowd" : "<tr>"; }
    static QByteArray nextRow(const QByteArray& all) { return rowStart(all); }
    static QByteArray escapedRtf(const QString& text) {
        QByteArray out;
        for (const QChar character : text) {
            if (character == u'\\' || character == u'{' || character == u'}') out += '\\';
            out += character.unicode() < 0x80 ? QByteArray(1, char(character.unicode()))
                                              : "\\u" + QByteArray::number(character.unicode()) + '?';
        }
        return out;
    }

    QByteArray head_;
    QByteArrayList around_;
};

double memoryLine(const char* name) {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) qFatal("The system does not tell its memory.");
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(name)) return line.simplified().split(' ').at(1).toDouble() * 1024;
    return 0;
}

/// How far the work's memory rises above what the program had before.
double memoryOf(const std::function<void()>& work) {
    malloc_trim(0);
    QFile peak("/proc/self/clear_refs");
    if (!peak.open(QIODevice::WriteOnly) || peak.write("5") != 1) qFatal("The peak cannot be set back.");
    peak.close();
    const double before = memoryLine("VmRSS");
    work();
    return memoryLine("VmHWM") - before;
}

class Measurements {
public:
    void addTo(Comparison& comparison) {
        ours("pdf", FileFormat::Pdf);
        const int rowsOnPage = lines / paginated()->pageCount() + 1;
        const auto rawPdf = [this, rowsOnPage] { barePdf(path("raw.pdf"), rowsOnPage); };
        rawPdf();
        timed(comparison, "list to PDF, loop of drawText", {.times = 1 / 1.5}, FileFormat::Pdf, "pdf", rawPdf);
        comparison.addMeasured(
            {"size of the PDF file", lines, {.times = 0.85}, Unit::Bytes}, 1,
            [this] { return double(QFileInfo(path("ours.pdf")).size()); },
            [this] { return double(QFileInfo(path("raw.pdf")).size()); });
        addBare(comparison, "list to HTML, loop of the same bytes", FileFormat::Html, "html");
        addBare(comparison, "list to RTF, loop of the same bytes", FileFormat::Rtf, "rtf");
        comparison.addMeasured({"list to Excel", lines, {.total = 3}}, runs,
                               [this] { return ours("xls", FileFormat::Excel); }, {});
        for (const auto& [suffix, format, megabytes] : {std::tuple("pdf", FileFormat::Pdf, 64.0),
                                                        {"html", FileFormat::Html, 64.0},
                                                        {"xls", FileFormat::Excel, 128.0}})
            comparison.addMeasured(
                {QString("memory of a run to %1").arg(suffix), lines, {.total = megabytes * (1 << 20)}, Unit::Bytes}, 1,
                [this, suffix = suffix, format = format] { return memoryOf([&] { ours(suffix, format); }); }, {});
        addPreview(comparison);
    }

private:
    QString path(const QString& name) const { return folder_.filePath(name); }

    std::unique_ptr<Paginator> paginated() {
        auto pages = paginate(longList(), paperFor(longList().definition));
        pages->layOutAll();
        return pages;
    }

    double ours(const QString& suffix, FileFormat format) {
        return seconds([&] {
            if (!writeFile(path("ours." + suffix), longList(), format, QPageSize(QPageSize::Letter)))
                qFatal("The report was cancelled.");
        });
    }

    void timed(Comparison& comparison, const QString& what, const Aim& aim, FileFormat format, const QString& suffix,
               const std::function<void()>& raw) {
        comparison.addMeasured(
            {what, lines, aim}, runs, [=, this] { return ours(suffix, format); }, [raw] { return seconds(raw); });
    }

    void addBare(Comparison& comparison, const QString& what, FileFormat format, const QString& suffix) {
        ours(suffix, format);
        MadeUpRows rows;
        rows.next();
        const BareLoop loop(path("ours." + suffix), textsOf(rows)[0].toUtf8());
        const bool html = format == FileFormat::Html;
        loop.write(path("raw." + suffix), html);
        const auto oursSize = QFileInfo(path("ours." + suffix)).size();
        const auto rawSize = QFileInfo(path("raw." + suffix)).size();
        if (std::abs(oursSize - rawSize) > oursSize / 100) qFatal("The loop writes something else: %lld", rawSize);
        timed(comparison, what, {.times = 1.5}, format, suffix, [=, this] { loop.write(path("raw." + suffix), html); });
    }

    void addPreview(Comparison& comparison) {
        comparison.addMeasured({"first page of a preview on screen", lines, {.total = 0.1}}, runs,
                               [this] {
                                   return seconds([this] {
                                       ReportPreview window(longList(), printer_, dialogs_);
                                       window.show();
                                       QApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 0);
                                       window.grab();
                                   });
                               },
                               {});
        comparison.addMeasured({"page turn in a preview", lines, {.total = 0.016}}, runs,
                               [this] {
                                   ReportPreview window(longList(), printer_, dialogs_);
                                   window.show();
                                   auto* number = window.findChild<QSpinBox*>("pageNumber");
                                   auto* view = window.findChild<PageView*>("pages");
                                   while (number->maximum() < 60) QApplication::processEvents();
                                   constexpr int turns = 50;
                                   return seconds([&] {
                                              for (int page = 2; page < 2 + turns; ++page) {
                                                  number->setValue(page);
                                                  view->viewport()->repaint();
                                              }
                                          }) /
                                          turns;
                               },
                               {});
    }

    QTemporaryDir folder_;
    QPrinter printer_;
    QuietDialogs dialogs_;
};

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) fprintf(stderr, "%s\n", qPrintable(text));
    });
    QApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    Measurements measurements;
    measurements.addTo(comparison);
    return comparison.run();
}
