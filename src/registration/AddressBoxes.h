#pragma once

#include <QString>

class FormBuilder;
class Text;
struct Program;

/// One box of an address: its caption and what it edits.
struct AddressBox {
    QString caption;
    Text& value;
};

/// An address as the forms of people hold it.
struct AddressBoxes {
    QString prefix;  ///< of the boxes: "Player" makes txtPlayerCity
    AddressBox street, apartment, city, state, postalCode, country;
};

void addAddress(FormBuilder& builder, const Program& program, const AddressBoxes& address);
