#include "sample_league/Chance.h"

#include <numeric>

namespace sample {

Chance::Chance(quint32 seed, quint32 subject) {
    std::seed_seq sequence{seed, subject};
    engine_.seed(sequence);
}

// The distributions of the standard library differ from one library to the next; this one does not.
int Chance::below(qsizetype count) {
    return static_cast<int>((quint64{engine_()} * static_cast<quint64>(count)) >> 32);
}

int Chance::weighted(std::initializer_list<int> shares) {
    int left = below(std::accumulate(shares.begin(), shares.end(), 0));
    int place = 0;
    for (const int share : shares) {
        if (left < share) return place;
        left -= share;
        ++place;
    }
    return 0;
}

}  // namespace sample
