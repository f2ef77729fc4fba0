#pragma once

#include <QtGlobal>
#include <initializer_list>
#include <random>
#include <utility>

namespace sample {

/// The league's only source of chance: the same numbers on every machine for the same seed and subject. Each subject
/// draws from its own, so that a change of one leaves the others as they were.
class Chance {
public:
    Chance(quint32 seed, quint32 subject);

    /// From 0 to below `count`, which is above 0.
    int below(qsizetype count);
    int between(int least, int most) { return least + below(most - least + 1); }
    bool percent(int share) { return below(100) < share; }
    /// The place of one of the shares, each taken as often as it says.
    int weighted(std::initializer_list<int> shares);

    template <class List>
    const auto& oneOf(const List& list) {
        return list[below(static_cast<qsizetype>(std::size(list)))];
    }
    template <class Type>
    Type oneOf(std::initializer_list<Type> list) {
        return list.begin()[below(static_cast<qsizetype>(list.size()))];
    }
    template <class List>
    void shuffle(List& list) {
        for (qsizetype i = list.size() - 1; i > 0; --i) std::swap(list[i], list[below(i + 1)]);
    }

private:
    std::mt19937 engine_;
};

}  // namespace sample
