#include "maintenance/merge/MergeRun.h"

#include "maintenance/merge/TableMerge.h"
#include "platform/datafile/Connection.h"

using datafile::Error;
using datafile::Value;

namespace {

constexpr double wholeOfBar = 26;  ///< steps that would fill it
constexpr double decided = 0.4;    ///< of a step, when its rows are read and judged
constexpr qsizetype mostErrorsTold = 10;

}  // namespace

QString numbered(const Error& error) {
    return QStringLiteral("%1-%2").arg(static_cast<int>(error.fault())).arg(error.text());
}

MergeRun::MergeRun(StoreContext& context, const datafile::Database& source, MergeProgress& progress)
    : work_{context, context.database(), source}, progress_(progress) {}

void MergeRun::run() { run(0, mergeSteps().size()); }

void MergeRun::run(size_t first, size_t last) {
    constexpr double size = 1 / wholeOfBar;
    const std::vector<MergeStep> steps = mergeSteps();
    for (size_t i = 0; i < last; ++i) {
        if (i < first) {
            takeAsDone(steps[i]);
            continue;
        }
        from_ = static_cast<double>(i + 1) * size;
        size_ = size;
        progress_.reached(from_, false);
        progress_.begin(tr(steps[i].text));
        runStep(steps[i]);
    }
}

void MergeRun::takeAsDone(const MergeStep& step) {
    for (const MergeTable& about : step.tables) {
        TableMerge table(work_, about);
        table.readLocal();
        table.readSource([](const Error&) {});
        table.remember();
    }
}

void MergeRun::runStep(const MergeStep& step) {
    Tables tables;
    for (const MergeTable& table : step.tables) tables.push_back(std::make_unique<TableMerge>(work_, table));
    QStringList errors;
    if (decide(tables, errors)) write(step, tables, errors);
    for (const auto& table : tables) table->remember();
    tell(errors);
}

bool MergeRun::decide(const Tables& tables, QStringList& errors) {
    try {
        const double part = size_ * decided / static_cast<double>(3 * tables.size());
        double reached = from_;
        for (const auto& table : tables) {
            table->readLocal();
            progress_.reached(reached += part, false);
            table->readSource([&](const Error& error) { errors << numbered(error); });
            progress_.reached(reached += part, false);
            table->decide();
            progress_.reached(reached += part, false);
        }
        return true;
    } catch (const Error& error) {
        for (const auto& table : tables) table->drop();
        errors = QStringList{numbered(error)};
        return false;
    }
}

void MergeRun::write(const MergeStep& step, const Tables& tables, QStringList& errors) {
    size_t all = 0;
    for (const auto& table : tables) all += table->writes();
    if (all == 0) return;
    try {
        datafile::Transaction transaction(work_.local);
        size_t before = 0;
        for (const auto& table : tables) {
            table->write([&](const Error& error) { errors << numbered(error); },
                         [&](size_t done) {
                             const double part = static_cast<double>(before + done) / static_cast<double>(all);
                             progress_.reached(from_ + size_ * (decided + (1 - decided) * part), true);
                         });
            before += table->writes();
        }
        if (step.afterwards) finishStep(step.afterwards);
        transaction.commit();
    } catch (const Error& error) {
        errors = QStringList{numbered(error)};
        for (const auto& table : tables) table->drop();
    }
}

/// The statement that ends a step takes the stamps of the rows that it changes.
void MergeRun::finishStep(const char* statement) {
    const Clock& clock = work_.context.clock;
    work_.local.prepare(QString::fromLatin1(statement))
        .bind(datafile::fromDate(clock.today()))
        .bind(Value{qint64{clock.secondsSinceMidnight()}})
        .run();
}

void MergeRun::tell(const QStringList& errors) {
    if (errors.isEmpty()) return;
    QString text = errors.mid(0, mostErrorsTold).join(u'\n');
    if (errors.size() > mostErrorsTold) text += u'\n' + tr("and %n more", nullptr, int(errors.size() - mostErrorsTold));
    work_.context.dialogs.warning(tr("Database Error"), text);
}
