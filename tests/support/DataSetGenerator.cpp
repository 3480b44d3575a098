#include "support/DataSetGenerator.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "accounts/AccountBook.h"
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

constexpr std::array<std::string_view, 24> surnameStems{
    "Wood",  "Wolf",  "Smith",   "Jones",  "Taylor", "Brown",  "Williams", "Wilson",
    "Evans", "Hall",  "Johnson", "Walker", "Wright", "Hughes", "Edwards",  "Green",
    "Patel", "Moore", "Cooper",  "King",   "Baker",  "O'Neil", "Morgan",   "Fox"};
constexpr std::array<std::string_view, 8> surnameEndings{"",    "",     "field", "man",
                                                         "ley", "-Hay", "son",   "s"};
constexpr std::array<std::string_view, 12> firstNames{"Anne",  "John", "Mary",  "Peter",
                                                      "Susan", "Jo",   "Alan",  "Jean",
                                                      "Helen", "Ruth", "Chris", "Sian"};
constexpr std::array<std::string_view, 6> styles{"Mr", "Mrs", "Ms", "Miss", "Dr", "Mr & Mrs"};
constexpr std::array<std::string_view, 6> streets{"Church Road", "High Street", "Mill Lane",
                                                  "The Green",   "Park Avenue", "Orchard Close"};
constexpr std::array<std::string_view, 4> towns{"Ashford", "Bridgwater", "Chester", "Frome"};
constexpr std::array<std::string_view, 4> vets{"Castle Vets", "Abbey Veterinary Centre",
                                               "Dr. Harding", ""};
constexpr std::array<std::string_view, 16> catNames{
    "Tigger", "Smudge", "Felix", "Misty", "Sooty",  "Tiggy",   "Poppy", "Charlie",
    "Molly",  "Oscar",  "Pig",   "Bella", "Ginger", "Marmite", "Fudge", "Sweep"};
constexpr std::array<std::string_view, 6> breeds{"Moggy",   "Siamese",    "Persian",
                                                 "Burmese", "Maine Coon", ""};
constexpr std::array<std::string_view, 6> colours{"Ginger", "Black & White", "Tabby",
                                                  "Grey",   "ginger tabby",  "Cream"};
constexpr std::array<std::string_view, 8> foods{"Chicken", "Fish",    "Dry biscuits", "Tuna",
                                                "Lamb",    "Pouches", "Beef",         "Milk"};
constexpr std::array<std::string_view, 4> notes{"Nervous with dogs", "Needs tablets daily",
                                                "Shy at first", "Diabetic - insulin"};

// Plain modulo, so that the sequence is the same on every library.
struct Picker {
    std::mt19937 engine;

    int below(int n) { return static_cast<int>(engine() % static_cast<std::uint32_t>(n)); }
    bool oneIn(int n) { return below(n) == 0; }
    template <class List> std::string_view from(const List& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }
};

// Writes a block straight to its file: the program's own writes flush to the
// disc, which would make a data set of 700 files take seconds.
template <class Block>
void writeBlock(const DataFolder& folder, const std::string& name, const Block& block)
{
    std::ofstream file(folder.fileName(name), std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(&block), sizeof block);
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

    const int cats = pick.below(catSlotCount + 1);
    for (int slot = 0; slot < cats; ++slot) {
        client.catName[slot].set(pick.from(catNames));
        client.catBreed[slot].set(pick.from(breeds));
        client.catColour[slot].set(pick.from(colours));
        for (int food = 0; food < foodsPerCat; ++food) {
            if (!pick.oneIn(3))
                client.favouriteFoods[slot][food].set(pick.from(foods));
            if (pick.oneIn(3))
                client.forbiddenFoods[slot][food].set(pick.from(foods));
        }
    }

    for (int line = 0; line < 4; ++line)
        if (pick.oneIn(3))
            client.notes[line].set((pick.oneIn(4) ? "#R# " : "") + std::string(pick.from(notes)));
    return client;
}

// The days charged and the money that makes up the account's final balance,
// varied by the receipt number alone so the draws above stay as they were:
// some accounts carry extras, a credit or a 10% discount.
void fillCharges(AccountRecord& account, int number)
{
    account.daysCharged.set(static_cast<std::int32_t>(
        dayCount(account.arrivalDate.str(), account.departureDate.str())));
    const float extras = number % 3 == 0 ? 4.5f : 0.0f;
    const float credit = number % 4 == 1 ? 20.0f : 0.0f;
    const float percentage = number % 5 == 2 ? 10.0f : 0.0f;
    const float netBoard = account.finalBalance.get() - extras + credit;
    const float grossBoard = netBoard / (1.0f - percentage / 100.0f);
    account.extrasAmount.set(extras);
    account.creditAmount.set(credit);
    account.discountPercentage.set(percentage);
    account.grossBoard.set(grossBoard);
    account.discountAmount.set(grossBoard - netBoard);
    account.netBoard.set(netBoard);
}

// A full book of ten accounts numbered from `first`, a fortnight apart.
AccountBook makeAccountBook(Picker& pick, const ClientRecord& client, int first)
{
    AccountBook book{};
    for (int slot = 0; slot < accountBookSlots; ++slot) {
        AccountRecord& account = book.accounts[slot];
        account.receiptNumber.set(first + slot);
        const int day = 1 + 14 * slot;
        account.arrivalDate.set(formatDateText(day % 28 + 1, day / 28 + 1, 24));
        account.departureDate.set(formatDateText(day % 28 + 1, day / 28 + 2, 24));
        account.catNames[0].set(client.catName[0].str());
        account.catsBoarded.set(1);
        account.finalBalance.set(static_cast<float>(40 + pick.below(200)));
        account.currencySign = 0xA3;
        fillCharges(account, first + slot);
    }
    return book;
}

} // namespace

ClientIndex generateDataSet(const DataFolder& folder, int clients, unsigned seed)
{
    Picker pick{std::mt19937(seed)};
    // Codes are made as the program makes them, seeded by the seed, not the time.
    PortableRandom random;
    const FakeClock clock(seed);
    RandomDraw draw(random, clock);
    std::set<std::string> takenCodes;

    ClientIndex index{};
    index.formatStamp.set(currentFormatStamp);

    const int count = std::clamp(clients, 0, maxClients);
    for (int number = 1; number <= count; ++number) {
        ClientRecord client = makeClient(pick, number);
        const std::string code = makeClientCode(
            client.surname.str(), client.firstName.str(), draw,
            [&](std::string_view candidate) { return takenCodes.count(toUpper(candidate)) > 0; });
        takenCodes.insert(toUpper(code));
        client.code.set(code);
        // The last stays spread over three years, so some clients are long gone.
        const int day = number % 23 + 1;
        const int month = number % 12 + 1;
        const int year = 24 + number % 3;
        client.lastInDate.set(formatDateText(day, month, year));
        client.lastOutDate.set(formatDateText(day + 5, month, year));
        writeBlock(folder, clientFileName(code, extension::clientRecord), client);
        if (pick.oneIn(5)) {
            AutoMemo memo{};
            memo.text.set("Remember " + client.catName[0].str() + "'s " +
                          std::string(pick.from(foods)) + " - number " + std::to_string(number));
            writeBlock(folder, clientFileName(code, extension::autoMemo), memo);
        }
        writeBlock(folder, clientFileName(code, extension::accountBook),
                   makeAccountBook(pick, client, 1000 + (number - 1) * accountBookSlots));
        appendEntry(index, client.surname.str(), code);
    }
    index.lastAccountNumber.set(1000 + count * accountBookSlots - 1);
    sortIndexEntries(index);
    writeBlock(folder, std::string(currentIndexFile), index);
    return index;
}

} // namespace purrlodge::testing
