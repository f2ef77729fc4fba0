#include "sample_league/Fees.h"

namespace sample {

namespace {

/// Amounts stand in the file as people typed them.
QString typed(Chance& chance, int amount) {
    return chance.percent(70) ? QString("$%1.00").arg(amount) : QString("%1.00").arg(amount);
}

}  // namespace

Cells feeCells(Chance& chance, int fee, bool isSibling) {
    const int asked = isSibling ? fee - 15 : fee;
    const int fundRaiser = isSibling ? 0 : chance.percent(80) ? 25 : 0;
    const int other = chance.percent(12) ? chance.oneOf({10, 15, 40}) : 0;
    const int total = asked + fundRaiser + other;

    enum State { Full, Nothing, Part, TooMuch, Waived };
    const int state = chance.weighted({60, 14, 15, 6, 5});
    QString amount = typed(chance, asked);
    QString paid;
    QString how = chance.oneOf({"Cash", "Check", "Check", "Credit Card", "Credit Card", "Money Order"});
    switch (state) {
        case Full: paid = typed(chance, total); break;
        case Nothing:
            paid = chance.percent(50) ? "0" : "";
            how.clear();
            break;
        case Part:
            paid = typed(chance, std::min(total - 5, 25 * chance.between(1, 3)));
            if (chance.percent(50)) how = "Payment Plan";
            break;
        case TooMuch: paid = typed(chance, total + 5 * chance.between(1, 6)); break;
        default:
            amount = chance.percent(50) ? "$0.00" : "waived";
            paid = typed(chance, fundRaiser + other);
            how = chance.percent(50) ? "Scholarship" : "Waived";
    }
    const bool settled = state != Nothing && state != Part;
    return {{"PlayerFeeAmount", amount},
            {"PlayerFundRaiserFee", fundRaiser > 0 ? typed(chance, fundRaiser)
                                    : isSibling    ? QString("0")
                                                   : QString()},
            {"PlayerFundRaiserFeePaid", fundRaiser > 0 && settled},
            {"PlayerOtherFees", other > 0 ? typed(chance, other) : QString()},
            {"PlayerOtherFeesPaid", other > 0 && settled},
            {"PlayerAmountPaid", paid},
            {"PlayerHowFeePaid", how}};
}

}  // namespace sample
