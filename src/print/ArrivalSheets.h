#pragma once

#include <string>

#include "accounts/EstablishmentRecord.h"
#include "clients/ArrivalForm.h"
#include "store/ClientRecord.h"
#include "store/StayRecord.h"

namespace purrlodge {

class Clock;
class RandomDraw;
struct PrintBuffer;

// Everything the three arrival sheets print: the client, the stay as its
// record holds it (dates, weekdays, remarks, cats ticked, their ages, the
// text lines and the vaccination status) and the cattery.
struct ArrivalSheetValues {
    const EstablishmentRecord& establishment;
    const ClientRecord& client;
    const StayRecord& stay;
    const Clock& clock;              // stored vaccination dates in the local calendar
    bool perDay = true;              // the stay's length in "days", else "nights"
    std::string standardExtraName{}; // printed with the stay when it is wanted
    bool inColour = false;           // this sheet is ticked for colour printing
    int nameColourIndex = 0;         // the cattery name's colour scheme, 0..10 (10 random)
};

// "Arrival Sheet-1", the pen card that goes with the cats: the cattery's name
// when its display flags hold "C", the client, each cat ticked with breed,
// colour, sex, age, chip and insurance, last vaccination, the foods it likes
// and must not have, the client's red notes, the stay's lines, the dates with
// weekdays and remarks, and the vaccination status. What the staff need while
// the cats are in, medication and feeding first, stands at the top.
void fillArrivalSheet1(PrintBuffer& buffer, const ArrivalSheetValues& values, RandomDraw& draw);

// "Arrival Sheet-2", the owner's copy and agreement: the cattery's heading,
// the client's address and telephones, the vet, the cats boarding, the dates,
// the cattery's optional lines 1 to 3, and a line to sign and date.
void fillArrivalSheet2(PrintBuffer& buffer, const ArrivalSheetValues& values, RandomDraw& draw);

// "Return Shee (3)", the checklist for the day of going home: the client, the
// cats with a box to tick, the departure date and remark, the things to hand
// back, and a reminder that the account is to be settled. With `testPattern`
// (the "-test" switch) it prints only its block of colour pattern lines
// ("This is 000" and the like), one line for each colour of the format.
void fillReturnSheet(PrintBuffer& buffer, const ArrivalSheetValues& values, bool testPattern);

} // namespace purrlodge
