#include "reports/RegistrationForm.h"
#include "reports/Reports.h"

using namespace report;

ReportDefinition Reports::registrationForm(const ReportInput& input) {
    using Form = RegistrationForm;
    ReportDefinition form = headed(input, tr("Registration Form"));
    form.typeface = Typeface::Form;
    form.lines = Form::together({Form::name(), Form::gender(), Form::guardians(), Form::medical(),
                                 Form::authorization(input.globals.organizationName), Form::uniform(), Form::email()});
    form.subReports = {Form::divisions()};
    return form;
}

LeagueReport Reports::rptPlayerRegistrationForm(const ReportInput& input) {
    return filledIn(registrationForm(input), input);
}
