#pragma once

#include <benchmark/benchmark.h>

#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <vector>

/// What a measurement should come to. Whatever is given must hold.
struct Aim {
    std::optional<double> times{};  ///< at most so many times the raw engine
    std::optional<double> more{};   ///< at most so much more than the raw engine
    std::optional<double> total{};  ///< at most so much altogether
};

enum class Unit { Seconds, Bytes };

/// How long the work takes.
double seconds(const std::function<void()>& work);

/// Measurements of the program beside the raw engine doing the same work, at several sizes of the league, printed
/// as one table:
///
///     Comparison comparison(&count, arguments);
///     comparison.add({"find a player", players, {.times = 4}}, [&] { ... }, [&] { ... });
///     return comparison.run();
class Comparison {
public:
    struct Subject {
        QString what;
        int players;
        Aim aim;
        Unit unit = Unit::Seconds;
    };
    using Work = std::function<void()>;
    /// Does the work once and gives what it took, in the subject's unit.
    using MeasuredWork = std::function<double()>;

    Comparison(int* count, char** arguments);
    /// Both are called over and over; without `raw` there is nothing to compare with.
    void add(const Subject& subject, Work ours, Work raw = {});
    /// For work that measures itself, such as the start of a program; each is done so many times.
    void addMeasured(const Subject& subject, int times, const MeasuredWork& ours, const MeasuredWork& raw = {});
    /// Measures and prints. The program's exit code.
    int run();

private:
    friend class Collector;
    struct Row {
        Subject subject;
        std::vector<double> ours{};  ///< a call, one a repetition
        std::vector<double> raw{};
    };

    void print() const;

    std::vector<Row> rows_;
};
