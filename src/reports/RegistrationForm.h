#pragma once

#include <QCoreApplication>

#include "platform/report/ReportDefinition.h"

/// The parts of which registration forms are made. What a player's row holds is printed; what it lacks, and all of a
/// blank form, is a rule to write on.
class RegistrationForm {
    Q_DECLARE_TR_FUNCTIONS(RegistrationForm)

public:
    using Lines = std::vector<report::Line>;

    static Lines name();
    static Lines gender();
    static Lines guardians();
    static Lines medical();
    /// Consent or refusal, with the organisation that is to act or not.
    static Lines authorization(const QString& organization);
    static Lines uniform();
    static Lines email();
    /// The league's divisions with their ages.
    static report::ReportDefinition divisions();

    static report::Line heading(const QString& text);
    /// All lines of several parts, one part below the other.
    static Lines together(std::initializer_list<Lines> parts);
};
