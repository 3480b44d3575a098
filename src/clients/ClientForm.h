#pragma once

#include <array>
#include <string>

#include "store/ClientRecord.h"

namespace purrlodge {

// Full Client Information (DIALOG 3) opens for a new client or on the current one.
enum class ClientFormMode { NewClient, EditClient };

// One row of the cat grid, as typed.
struct CatRowEntries {
    std::string name;
    std::string breed;
    std::string colour;
    std::string birthYear;       // "DoB\nyyyy"
    std::string sex;             // "Sex\nMmFf"
    std::string chipInsurance;   // "Chip/Ins\nc+- i+-"
    std::string lastVaccination; // "Last Vac\n mm/yy"

    friend bool operator==(const CatRowEntries&, const CatRowEntries&) = default;
};

// The entries of Full Client Information (DIALOG 3), as typed.
struct ClientForm {
    ClientFormMode mode = ClientFormMode::NewClient;

    std::string style;
    std::string firstName;
    std::string surname;
    std::array<std::string, 4> address;
    std::string telephone;
    std::string mobile;
    std::string vet;
    std::string email;
    std::array<std::string, 4> notes;
    std::array<bool, 4> redNote{}; // the "Red" box beside each notes line
    std::array<std::string, foodsPerCat> favouriteFoods;
    std::array<std::string, foodsPerCat> forbiddenFoods;
    std::string known;
    std::string lastIn;
    std::string lastOut;
    std::array<CatRowEntries, catSlotCount> cats;

    friend bool operator==(const ClientForm&, const ClientForm&) = default;
};

} // namespace purrlodge
