#include "registration/AddressBoxes.h"

#include "platform/text/KeyFilters.h"
#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/Choices.h"

void addAddress(FormBuilder& builder, const Program& program, const AddressBoxes& address) {
    const auto text = [&](const char* name, const AddressBox& box, const KeyFilter& filter) {
        builder.text(u"txt" + address.prefix + QLatin1String(name), box.caption, textBinding(box.value), filter);
    };
    text("Address1", address.street, FilterTextWide);
    text("Address2", address.apartment, FilterTextWide);
    text("City", address.city, FilterTextFull);
    builder.choice(u"cbo" + address.prefix + u"StateId", address.state.caption, textBinding(address.state.value),
                   stateIds(program), ChoiceBox::FreeText | ChoiceBox::UpperCase, FilterTextFull);
    text("PostalCode", address.postalCode, FilterTextFull);
    builder.choice(u"cbo" + address.prefix + u"CountryCode", address.country.caption,
                   textBinding(address.country.value), {"Canada", "USA"}, ChoiceBox::FreeText | ChoiceBox::EmptyFirst,
                   FilterTextFull);
}
