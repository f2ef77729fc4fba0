#include "Comparison.h"

#include <QElapsedTimer>
#include <QStringList>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int repetitions = 7;
constexpr char rawMark[] = "raw";
constexpr char oursMark[] = "ours";

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

QString valueText(double value, Unit unit) {
    if (unit == Unit::Bytes) return QString::number(value / (1 << 20), 'f', 1) + " MB";
    const double seconds = value;
    if (seconds < 1e-3) return QString::number(seconds * 1e6, 'f', 1) + " us";
    if (seconds < 1) return QString::number(seconds * 1e3, 'f', seconds < 0.1 ? 2 : 0) + " ms";
    return QString::number(seconds, 'f', 2) + " s";
}

QString aimText(const Comparison::Subject& subject) {
    const auto& [times, more, total] = subject.aim;
    QStringList parts;
    if (times) parts << QString("<= %1 x").arg(*times);
    if (more) parts << "<= raw + " + valueText(*more, subject.unit);
    if (total) parts << "<= " + valueText(*total, subject.unit);
    return parts.join(", ");
}

bool holds(const Aim& aim, double ours, std::optional<double> raw) {
    return (!aim.times || ours <= *aim.times * *raw) && (!aim.more || ours <= *raw + *aim.more) &&
           (!aim.total || ours <= *aim.total);
}

}  // namespace

/// Takes each repetition's time instead of printing it. A run is named "<row>/<mark>".
class Collector final : public benchmark::BenchmarkReporter {
public:
    explicit Collector(std::vector<Comparison::Row>& rows) : rows_(rows) {}
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const QStringList name = QString::fromStdString(run.run_name.function_name).split('/');
            auto& row = rows_[name.at(0).section('.', 0, 0).toUInt()];
            const double value = run.real_accumulated_time / static_cast<double>(run.iterations);
            (name.at(1) == QLatin1String(rawMark) ? row.raw : row.ours).push_back(value);
        }
    }

private:
    std::vector<Comparison::Row>& rows_;
};

double seconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

Comparison::Comparison(int* count, char** arguments) {
    char interleave[] = "--benchmark_enable_random_interleaving=true";  // a busy moment must not hit one side alone
    std::vector<char*> all(arguments, arguments + *count);
    all.insert(all.begin() + 1, interleave);
    int allCount = static_cast<int>(all.size());
    benchmark::Initialize(&allCount, all.data());
}

void Comparison::add(const Subject& subject, Work ours, Work raw) {
    const auto name = [&](const char* mark) {
        return QString("%1. %2, %3 players/%4").arg(rows_.size()).arg(subject.what).arg(subject.players).arg(mark);
    };
    const auto measure = [&](const char* mark, Work work) {
        const auto loop = [work = std::move(work)](benchmark::State& state) {
            for ([[maybe_unused]] auto _ : state) work();
        };
        benchmark::RegisterBenchmark(name(mark).toUtf8().constData(), loop)->Repetitions(repetitions)->MinTime(0.1);
    };
    measure(oursMark, std::move(ours));
    if (raw) measure(rawMark, std::move(raw));
    rows_.push_back({subject});
}

void Comparison::addMeasured(const Subject& subject, int times, const MeasuredWork& ours, const MeasuredWork& raw) {
    const auto measure = [&](const char* mark, const MeasuredWork& work) {
        const auto once = [work](benchmark::State& state) {
            for ([[maybe_unused]] auto _ : state) state.SetIterationTime(work());
        };
        const QString name =
            QString("%1. %2, %3 players/%4").arg(rows_.size()).arg(subject.what).arg(subject.players).arg(mark);
        benchmark::RegisterBenchmark(name.toUtf8().constData(), once)
            ->Repetitions(times)
            ->Iterations(1)
            ->UseManualTime();
    };
    measure(oursMark, ours);
    if (raw) measure(rawMark, raw);
    rows_.push_back({subject});
}

int Comparison::run() {
    Collector collector(rows_);
    benchmark::RunSpecifiedBenchmarks(&collector);
    print();
    return 0;
}

void Comparison::print() const {
    std::printf("%-44s %8s %10s %10s %7s %7s  %-26s\n", "what (median of repetitions)", "players", "ours", "raw",
                "ratio", "growth", "aim");
    for (const Row& row : rows_) {
        if (row.ours.empty()) continue;
        const double ours = median(row.ours);
        const std::optional<double> raw = row.raw.empty() ? std::nullopt : std::optional(median(row.raw));
        const auto smaller = std::find_if(rows_.begin(), rows_.end(), [&](const Row& other) {
            return other.subject.what == row.subject.what && other.subject.players < row.subject.players &&
                   !other.ours.empty();
        });
        const QString growth =
            smaller == rows_.end() ? QString() : QString::number(ours / median(smaller->ours), 'f', 1) + " x";
        const QString ratio = raw ? QString::number(ours / *raw, 'f', 2) + " x" : QString();
        const bool isMet = holds(row.subject.aim, ours, raw);
        std::printf("%-44s %8d %10s %10s %7s %7s  %-26s %s\n", qPrintable(row.subject.what), row.subject.players,
                    qPrintable(valueText(ours, row.subject.unit)),
                    raw ? qPrintable(valueText(*raw, row.subject.unit)) : "", qPrintable(ratio), qPrintable(growth),
                    qPrintable(aimText(row.subject)), isMet ? "" : "MISSED");
    }
}
