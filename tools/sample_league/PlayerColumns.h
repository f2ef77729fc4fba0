#pragma once

#include "sample_league/Family.h"

namespace sample {

/// One child, before there is a row.
struct Child {
    QString firstName;
    QDate birth;
    bool isGirl = false;
    int division = -1;
    int team = -1;
    bool active = true;
    bool deleted = false;
    QDate registered{};
    int age = 0;     ///< league age
    int jersey = 0;  ///< 0 for none
    bool hasTryout = false;
    bool isUmpire = false;
};

/// What stands in a player's row, but for the keys and the money.
class PlayerColumns {
public:
    explicit PlayerColumns(const League& league);
    Cells all(Chance& chance, const Family& family, const Child& child, int number) const;

private:
    Cells uniform(Chance& chance, const Child& child) const;
    Cells school(Chance& chance, const Child& child) const;
    Cells other(Chance& chance, const Family& family, int number) const;

    const League& league_;
    QStringList shirts_, pants_, hats_, socks_, shoes_;
};

}  // namespace sample
