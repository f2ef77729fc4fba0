#include "reports/RegistrationForm.h"
#include "reports/Reports.h"

using namespace report;

/// A league of girls: no boxes for the gender, the uniform before the medical part, each part in a frame.
ReportDefinition Reports::brackenValeForm(const ReportInput& input) {
    using Form = RegistrationForm;
    ReportDefinition form = headed(input, tr("Registration Form"));
    form.typeface = Typeface::Form;
    form.points = 8.5;  // its frames take room
    const auto framed = [](Form::Lines lines) {
        for (Line& line : lines)
            if (line.frame == Line::Frame::None) line = line.boxed();
        return lines;
    };
    form.lines =
        Form::together({framed(Form::name()), framed(Form::guardians()), framed(Form::email()), framed(Form::uniform()),
                        framed(Form::medical()), framed(Form::authorization(input.globals.organizationName))});
    form.subReports = {Form::divisions()};
    return form;
}

LeagueReport Reports::rptBrackenValePlayerRegistration(const ReportInput& input) {
    return filledIn(brackenValeForm(input), input);
}
