#include "support/DataSetGenerator.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "app/PortableRandom.h"
#include "clients/AutoMemo.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/IndexOperations.h"
#include "store/RandomDraw.h"
#include "store/TextHelpers.h"
#include "support/FakePorts.h"

namespace purrlodge::testing {

namespace {

constexpr std::array<std::string_view, 40> surnameStems{
    "Wood",  "Wolf",    "Smith",   "Jones",    "Taylor", "Brown",  "Williams", "Wilson",
    "Evans", "Thomas",  "Johnson", "Roberts",  "Walker", "Wright", "Robinson", "Thompson",
    "White", "Hughes",  "Edwards", "Green",    "Hall",   "Lewis",  "Harris",   "Clarke",
    "Patel", "Jackson", "Turner",  "Hill",     "Moore",  "Cooper", "Ward",     "Morris",
    "King",  "Watson",  "Baker",   "Harrison", "O'Neil", "Morgan", "Bell",     "Fox"};
constexpr std::array<std::string_view, 8> surnameEndings{"",    "",     "field", "man",
                                                         "ley", "-Hay", "son",   "s"};
constexpr std::array<std::string_view, 16> firstNames{
    "Anne", "John", "Mary", "Peter", "Susan", "David", "Jo",     "Margaret",
    "Alan", "Jean", "Paul", "Helen", "Chris", "Ruth",  "Graham", "Sian"};
constexpr std::array<std::string_view, 6> styles{"Mr", "Mrs", "Ms", "Miss", "Dr", "Mr & Mrs"};
constexpr std::array<std::string_view, 8> streets{"Church Road",   "High Street",    "Mill Lane",
                                                  "Station Road",  "The Green",      "Park Avenue",
                                                  "Orchard Close", "Victoria Street"};
constexpr std::array<std::string_view, 6> towns{"Ashford",    "Bridgwater", "Chester",
                                                "Dorchester", "Ely",        "Frome"};
constexpr std::array<std::string_view, 5> vets{"Castle Vets", "Abbey Veterinary Centre",
                                               "Dr. Harding", "Riverside Vets", ""};
constexpr std::array<std::string_view, 24> catNames{
    "Tigger", "Smudge", "Felix", "Misty",  "Sooty",   "Tiggy",  "Poppy",   "Charlie",
    "Molly",  "Oscar",  "Pig",   "Bella",  "Jasper",  "Willow", "Pickle",  "Biscuit",
    "Luna",   "Ginger", "Max",   "Thomas", "Marmite", "Fudge",  "Bramble", "Sweep"};
constexpr std::array<std::string_view, 8> breeds{"Moggy",      "Siamese", "Persian",    "Burmese",
                                                 "Maine Coon", "Ragdoll", "British SH", ""};
constexpr std::array<std::string_view, 9> colours{"Ginger",        "Black",         "Tabby",
                                                  "Black & White", "Tortoiseshell", "Grey",
                                                  "ginger tabby",  "Cream",         "White"};
constexpr std::array<std::string_view, 8> foods{"Chicken", "Fish",    "Dry biscuits", "Tuna",
                                                "Lamb",    "Pouches", "Beef",         "Milk"};
constexpr std::array<std::string_view, 6> notes{"Nervous with dogs",  "Needs tablets daily",
                                                "Likes a heated pad", "Shy at first",
                                                "Diabetic - insulin", "Old cat, handle gently"};

class Picker {
public:
    explicit Picker(unsigned seed) : engine_(seed) {}

    // 0..n-1; plain modulo so that the sequence is the same on every library.
    int below(int n) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(n)); }
    bool oneIn(int n) { return below(n) == 0; }
    template <class List> std::string_view from(const List& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

private:
    std::mt19937 engine_;
};

// Writes a block straight to its file. The program's own writes flush every
// file to the disc, which makes a data set of 700 files take seconds; test
// data needs no such care.
template <class Block>
void writeBlock(const DataFolder& folder, const std::string& name, const Block& block)
{
    std::ofstream file(folder.fileName(name), std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(&block), sizeof block);
}

std::string dateText(int day, int month, int year)
{
    return formatDateText(day, month, year % 100);
}

void fillCats(ClientRecord& client, Picker& pick)
{
    const int cats = pick.below(catSlotCount + 1);
    for (int slot = 0; slot < cats; ++slot) {
        client.catName[slot].set(pick.from(catNames));
        client.catBreed[slot].set(pick.from(breeds));
        client.catColour[slot].set(pick.from(colours));
        client.catBirthYear[slot].set(pick.oneIn(6) ? 0 : generatedDataYear - 1 - pick.below(18));
        client.catSex[slot].set(pick.below(5));
        client.catMicrochip[slot].set(pick.below(3));
        client.catInsurance[slot].set(pick.below(3));
        const std::string vaccinated = dateText(1, 1 + pick.below(12), 2016 + pick.below(9));
        client.catLastVaccination[slot].set(
            pick.oneIn(8) ? 0 : static_cast<std::int32_t>(dateToNumber(vaccinated)));
        for (int food = 0; food < foodsPerCat; ++food) {
            if (!pick.oneIn(3))
                client.favouriteFoods[slot][food].set(pick.from(foods));
            if (pick.oneIn(3))
                client.forbiddenFoods[slot][food].set(pick.from(foods));
        }
    }
}

ClientRecord makeClient(Picker& pick, int number)
{
    ClientRecord client{};
    const std::string surname =
        std::string(pick.from(surnameStems)) + std::string(pick.from(surnameEndings));
    const std::string_view firstName = pick.from(firstNames);
    client.surname.set(surname);
    client.firstName.set(firstName);
    client.style.set(pick.from(styles));
    client.address[0].set(std::to_string(1 + pick.below(120)) + ' ' +
                          std::string(pick.from(streets)));
    client.address[1].set(pick.from(towns));
    if (!pick.oneIn(3))
        client.address[2].set("Somerset");
    client.address[3].set("BA" + std::to_string(1 + pick.below(20)) + ' ' +
                          std::to_string(pick.below(10)) + "XY");
    client.telephone.set("01632 " + std::to_string(100000 + number * 7));
    client.mobile.set(pick.oneIn(3) ? "::" : "07700 " + std::to_string(900000 + number) + "::");
    client.vet.set(pick.from(vets));
    if (!pick.oneIn(4))
        client.email.set(toLower(std::string(firstName) + '.' + surname) + "@example.com");

    fillCats(client, pick);

    for (int line = 0; line < 4; ++line) {
        if (pick.oneIn(3))
            client.notes[line].set((pick.oneIn(4) ? "#R# " : "") + std::string(pick.from(notes)));
    }
    client.arrivalDate.set(dateText(1 + pick.below(28), 1 + pick.below(12), generatedDataYear));
    client.departureDate.set(dateText(1 + pick.below(28), 1 + pick.below(12), generatedDataYear));
    if (!pick.oneIn(4)) {
        client.lastInDate.set(dateText(1 + pick.below(28), 1 + pick.below(12), 2023));
        client.lastOutDate.set(dateText(1 + pick.below(28), 1 + pick.below(12), 2023));
    }
    const std::string registered =
        dateText(1 + pick.below(28), 1 + pick.below(12), 2005 + pick.below(19));
    client.firstRegistered.set(
        pick.oneIn(10) ? 0 : static_cast<std::int32_t>(dateToNumber(registered)));
    client.knownRating.set(pick.below(11));
    return client;
}

} // namespace

ClientIndex generateDataSet(const DataFolder& folder, int clients, unsigned seed)
{
    Picker pick(seed);
    // Codes are made as the program makes them, from a generator seeded by
    // this data set's seed rather than the time.
    PortableRandom random;
    const FakeClock clock(seed);
    RandomDraw draw(random, clock);
    std::set<std::string> takenCodes;

    ClientIndex index{};
    index.formatStamp.set(currentFormatStamp);
    index.backupReminderMode.set(1);

    const int count = std::clamp(clients, 0, maxClients);
    for (int number = 1; number <= count; ++number) {
        ClientRecord client = makeClient(pick, number);
        const std::string code = makeClientCode(
            client.surname.str(), client.firstName.str(), draw,
            [&](std::string_view candidate) { return takenCodes.count(toUpper(candidate)) > 0; });
        takenCodes.insert(toUpper(code));
        client.code.set(code);
        writeBlock(folder, clientFileName(code, extension::clientRecord), client);
        if (pick.oneIn(5)) {
            AutoMemo memo{};
            memo.text.set("Remember " + client.catName[0].str() + "'s " +
                          std::string(pick.from(foods)) + " - number " + std::to_string(number));
            writeBlock(folder, clientFileName(code, extension::autoMemo), memo);
        }
        appendEntry(index, client.surname.str(), code);
    }
    sortIndexEntries(index);
    writeBlock(folder, std::string(currentIndexFile), index);
    return index;
}

} // namespace purrlodge::testing
