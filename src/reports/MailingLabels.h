#pragma once

#include <QCoreApplication>
#include <array>
#include <optional>

#include "reports/LabelOptions.h"

struct Program;

/// What the user is asked for mailing labels: who gets one, whether the printer is ready, where the sheet begins.
class MailingLabels {
    Q_DECLARE_TR_FUNCTIONS(MailingLabels)

public:
    /// Of whom the labels are, in the order of the selection screen.
    enum People { Players = 0, Volunteers = 1, Sponsors = 2 };

    explicit MailingLabels(Program& program) : program_(program) {}

    /// Lets the user choose who gets a label. It holds until the selection screen is closed.
    void choose(int people);
    /// What was chosen, with the first label asked for. Nothing where the user stays.
    std::optional<LabelOptions> begin(int people);

private:
    Program& program_;
    std::array<LabelOptions, 3> chosen_{};
};
