// Writes the fuzz targets' seed inputs into tests/data/corpus/<target>/: a few
// good files made with the program's own record types, and damaged ones
// (negative and huge counts and years, texts without terminators, short
// files). The seeds are committed; run this after changing a record or a
// target's input layout:
//   build-fuzz/tests/fuzz/fuzz_seed_corpus tests/data/corpus

#include <climits>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>
#include <string_view>

#include "accounts/CatteryFiles.h"
#include "clients/AutoMemo.h"
#include "clients/EarlierCatRecord.h"
#include "clients/OtherCatsFile.h"
#include "store/ClientIndex.h"
#include "store/ClientRecord.h"
#include "store/Dates.h"
#include "store/IndexOperations.h"
#include "store/StayRecord.h"

namespace {

using namespace purrlodge;
namespace fs = std::filesystem;

fs::path corpus;

template <class Block> std::string bytesOf(const Block& block)
{
    return std::string(reinterpret_cast<const char*>(&block), sizeof block);
}

void seed(std::string_view target, std::string_view name, std::string_view bytes)
{
    const fs::path folder = corpus / target;
    fs::create_directories(folder);
    std::ofstream(folder / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Fills a text field to its last byte, leaving no terminator.
template <std::size_t Width> void fillWhole(FixedText<Width>& field, char c)
{
    std::memset(field.bytes, c, Width);
}

std::int32_t dateNumber(std::string_view ddmmyy)
{
    return static_cast<std::int32_t>(dateToNumber(ddmmyy));
}

// ---- index ----

ClientIndex goodIndex()
{
    ClientIndex index{};
    index.formatStamp.set(currentFormatStamp);
    index.backupReminderMode.set(1);
    index.lastAccountNumber.set(1042);
    const char* people[][2] = {{"Smith", "SMITHANN"},       {"O'Brien", "O'BRIDAN"},
                               {"\xC1vila", "\xC1VILAMAR"}, {"smith-jones", "SMITHBOB"},
                               {"Wood", "WOODFRED"},        {"Woodfield", "WOODFIAA"}};
    for (const auto& [surname, code] : people)
        appendEntry(index, surname, code);
    return index;
}

void indexSeeds()
{
    ClientIndex index = goodIndex();
    seed("index", "unsorted.ctl", bytesOf(index));
    sortIndexEntries(index);
    seed("index", "sorted.ctl", bytesOf(index));
    seed("index", "short.ctl", bytesOf(index).substr(0, 100));

    ClientIndex full{};
    full.formatStamp.set(currentFormatStamp);
    for (int client = 0; client < maxClients; ++client) {
        const std::string number = std::to_string(client);
        appendEntry(full, "Name" + std::to_string(maxClients - client), "CODE" + number);
    }
    sortIndexEntries(full); // as the program keeps it: unsorted, the sort takes seconds
    seed("index", "full.ctl", bytesOf(full));

    for (const auto& [name, count] : {std::pair{"count-negative.ctl", -5},
                                      {"count-minus-one.ctl", -1},
                                      {"count-huge.ctl", INT_MAX},
                                      {"count-lowest.ctl", INT_MIN}}) {
        ClientIndex damaged = goodIndex();
        damaged.count.set(count);
        damaged.lastAccountNumber.set(count);
        seed("index", name, bytesOf(damaged));
    }

    // No terminators anywhere, and codes that climb out of the data folder.
    ClientIndex unterminated = goodIndex();
    for (IndexEntry& entry : unterminated.entries) {
        fillWhole(entry.key, 'W');
        fillWhole(entry.code, '.');
    }
    unterminated.entries[1].code.set("../../x");
    unterminated.entries[2].code.set("/");
    seed("index", "unterminated.ctl", bytesOf(unterminated));
}

// ---- client record ----

ClientRecord goodClient()
{
    ClientRecord client{};
    client.code.set("SMITHANN");
    client.style.set("Mrs");
    client.firstName.set("Anne");
    client.surname.set("Smith");
    client.address[0].set("1 Mill Lane");
    client.address[3].set("BA11 1XY");
    client.telephone.set("01632 960001");
    client.mobile.set("07700 900001::");
    client.email.set("anne@example.com");
    client.vet.set("Castle Vets");
    const char* cats[] = {"Tigger", "Smudge", "", "Pig"};
    for (int slot = 0; slot < 4; ++slot) {
        client.catName[slot].set(cats[slot]);
        client.catBreed[slot].set("Moggy");
        client.catColour[slot].set("Grey");
        client.catBirthYear[slot].set(2010 + slot);
        client.catSex[slot].set(slot + 1);
        client.catMicrochip[slot].set(2);
        client.catInsurance[slot].set(1);
        client.catLastVaccination[slot].set(dateNumber("01/06/23"));
    }
    client.arrivalDate.set("01/05/24");
    client.departureDate.set("08/05/24");
    client.lastInDate.set("02/02/23");
    client.lastOutDate.set("09/02/23");
    client.firstRegistered.set(dateNumber("05/03/09"));
    client.knownRating.set(3);
    client.notes[0].set("#R# Needs tablets");
    client.favouriteFoods[0][0].set("Fish");
    client.forbiddenFoods[0][1].set("Milk");
    return client;
}

void clientRecordSeeds()
{
    const ClientRecord good = goodClient();
    seed("client_record", "good.dat", bytesOf(good));
    seed("client_record", "short.dat", bytesOf(good).substr(0, 700));

    // The lowest and highest numbers in every numeric field.
    for (const auto& [name, value] :
         {std::pair{"numbers-lowest.dat", INT_MIN}, {"numbers-highest.dat", INT_MAX}}) {
        ClientRecord extreme = good;
        for (int slot = 0; slot < catSlotCount; ++slot) {
            extreme.catName[slot].set("Cat" + std::to_string(slot));
            extreme.catBirthYear[slot].set(value);
            extreme.catSex[slot].set(value);
            extreme.catMicrochip[slot].set(value);
            extreme.catInsurance[slot].set(value);
            extreme.catLastVaccination[slot].set(value);
        }
        extreme.firstRegistered.set(value);
        extreme.knownRating.set(value);
        extreme.inactive.set(value);
        seed("client_record", name, bytesOf(extreme));
    }

    ClientRecord unterminated{};
    std::memset(&unterminated, 'A', sizeof unterminated);
    unterminated.code.set("../../x");
    seed("client_record", "unterminated.dat", bytesOf(unterminated));
}

// ---- stay and rates ----

StayRecord stay(std::string_view arrival, std::string_view departure)
{
    StayRecord record{};
    record.arrivalDate.set(arrival);
    record.departureDate.set(departure);
    record.catInStay[0].set(1);
    record.catInStay[2].set(1);
    record.textLine1.set("12.50"); // extras
    record.textLine2.set("\xA3"
                         "5");           // credit
    record.furtherLines[0].set("10");    // discount percentage
    record.furtherLines[1].set("$3.00"); // standard extra
    record.standardExtraChosen[0].set(1);
    record.dialogText.set("Collected by her sister");
    return record;
}

RatesRecord rates(std::int32_t changeTime)
{
    RatesRecord record{};
    for (int cats = 0; cats < 6; ++cats) {
        record.presentRate[cats].set(10.0f + 5.0f * static_cast<float>(cats));
        record.previousRate[cats].set(9.0f + 5.0f * static_cast<float>(cats));
    }
    record.standardExtraCharge.set(3.0f);
    record.standardExtraName.set("Grooming");
    record.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
    record.perDay.set(1);
    record.rateChangeTime.set(changeTime);
    record.accountNote.set("Thank you");
    return record;
}

ExchangeRateRecord exchangeRate(float pencePerEuro)
{
    ExchangeRateRecord record{};
    record.pencePerEuro.set(pencePerEuro);
    record.showEuros.set(1);
    return record;
}

void stayAndRatesSeeds()
{
    const std::int32_t change = dateNumber("05/03/24");
    const auto put = [](std::string_view name, const StayRecord& s, const RatesRecord& r,
                        const ExchangeRateRecord& x) {
        seed("stay_and_rates", name, bytesOf(s) + bytesOf(r) + bytesOf(x));
    };
    put("one-rate.bin", stay("06/03/24", "13/03/24"), rates(change), exchangeRate(85.5f));
    put("split.bin", stay("01/03/24", "08/03/24"), rates(change), exchangeRate(85.5f));
    put("no-such-day.bin", stay("99/99/99", "31/02/24"), rates(change), exchangeRate(0.0f));
    put("year-highest.bin", stay("01/01/24", "31/02/2147483647"), rates(change),
        exchangeRate(85.5f));
    put("year-lowest.bin", stay("01/01/-2147483648", "01/01/2147483647"), rates(INT_MAX),
        exchangeRate(85.5f));

    RatesRecord strange = rates(INT_MIN);
    strange.presentRate[0].set(std::numeric_limits<float>::quiet_NaN());
    strange.presentRate[2].set(std::numeric_limits<float>::infinity());
    strange.previousRate[2].set(-std::numeric_limits<float>::max());
    strange.standardExtraCharge.set(std::numeric_limits<float>::quiet_NaN());
    strange.currency.set(UINT32_MAX);
    strange.perDay.set(7);
    fillWhole(strange.standardExtraName, 'G');
    StayRecord allCats = stay("2147483647/2147483647/2147483647", "-1/-1/-1");
    for (int slot = 0; slot < catSlotCount; ++slot)
        allCats.catInStay[slot].set(INT_MIN + slot);
    allCats.textLine1.set("1e39");
    allCats.furtherLines[0].set("-1e308");
    put("numbers-strange.bin", allCats, strange,
        exchangeRate(std::numeric_limits<float>::denorm_min()));
    seed("stay_and_rates", "short.bin", bytesOf(stay("01/03/24", "08/03/24")).substr(0, 30));
}

// ---- cattery files ----

EstablishmentRecord establishment()
{
    EstablishmentRecord record{};
    record.name.set("Whiskers Lodge");
    record.manager.set("Jo Bloggs");
    record.address[0].set("The Old Barn");
    record.vaccinationYears.set("1");
    record.managerTypeSize.set("3");
    record.chequesColour.set("**RED**");
    record.colourPrinting.set("01234");
    record.displayFlags.set("CA3");
    return record;
}

void catteryFilesSeeds()
{
    ColourBlock colours{};
    colours.scheme.set(4);
    const std::string good = bytesOf(establishment()) + bytesOf(rates(dateNumber("05/03/24"))) +
                             bytesOf(exchangeRate(85.5f)) + bytesOf(colours);
    seed("cattery_files", "good.bin", good);
    seed("cattery_files", "establishment-only.bin", bytesOf(establishment()));
    seed("cattery_files", "short-rates.bin", good.substr(0, sizeof(EstablishmentRecord) + 40));

    EstablishmentRecord damaged{};
    std::memset(&damaged, '9', sizeof damaged);
    RatesRecord strange = rates(INT_MIN);
    strange.currency.set(UINT32_MAX);
    strange.presentRate[0].set(std::numeric_limits<float>::quiet_NaN());
    strange.standardExtraCharge.set(-std::numeric_limits<float>::infinity());
    ColourBlock oddColours{};
    oddColours.scheme.set(UINT32_MAX);
    seed("cattery_files", "damaged.bin",
         bytesOf(damaged) + bytesOf(strange) +
             bytesOf(exchangeRate(std::numeric_limits<float>::max())) + bytesOf(oddColours));
}

// ---- other cats, earlier cats, memo, note book ----

OtherCatsFile otherCats()
{
    OtherCatsFile file{};
    for (OtherCatRecord& cat : file.cats)
        cat.sex.set(-1);
    file.cats[8].name.set("Tibbles");
    file.cats[8].history.set("Born 2001,   Departed 07/03/09,   age 8");
    file.cats[8].reason.set("Rehomed");
    file.cats[8].notes.set("Went to her sister");
    file.cats[9].name.set("Sooty");
    file.cats[9].reason.set("Lost");
    return file;
}

EarlierCatRecord earlierCat(std::string_view name, int sex)
{
    EarlierCatRecord cat{};
    cat.sex.set(sex);
    cat.name.set(name);
    cat.breed.set("Persian");
    cat.note.set("Allergic to fleas");
    cat.dateOfBirth.set("1998");
    return cat;
}

std::string otherFiles(const OtherCatsFile& others, std::string_view memo, std::string_view earlier,
                       std::string_view noteBook)
{
    AutoMemo autoMemo{};
    autoMemo.text.set(memo);
    const std::size_t length = earlier.size();
    std::string bytes{static_cast<char>(length & 0xFF), static_cast<char>(length >> 8)};
    return bytes + bytesOf(others) + bytesOf(autoMemo) + std::string(earlier) +
           std::string(noteBook);
}

void otherCatsSeeds()
{
    const std::string earlier = bytesOf(earlierCat("Bramble", 4)) + bytesOf(earlierCat("Max", 2));
    seed("other_cats", "good.bin",
         otherFiles(otherCats(), "Needs her tablets at night", earlier,
                    "Needs a quiet pen\r\nShy with dogs\r\n"));
    seed("other_cats", "torn-earlier-cats.bin",
         otherFiles(otherCats(), "", earlier + std::string(100, 'x'),
                    std::string(1200, 'b') + "\n\n\r\n"));
    OtherCatsFile unterminated{};
    std::memset(&unterminated, 'Z', sizeof unterminated);
    for (OtherCatRecord& cat : unterminated.cats)
        cat.sex.set(INT_MIN);
    EarlierCatRecord oddCat{};
    std::memset(&oddCat, 'Q', sizeof oddCat);
    oddCat.sex.set(INT_MAX);
    seed("other_cats", "unterminated.bin",
         otherFiles(unterminated, std::string(1001, 'm'), bytesOf(oddCat), std::string(600, '\r')));
    seed("other_cats", "other-cats-short.bin", otherFiles(otherCats(), "", "", "").substr(0, 2000));
}

// ---- texts: settings, dates, client form ----

void textSeeds()
{
    seed("settings", "good.ini",
         "[Purrlodge]\r\nCurrentDir=/home/cattery/CatData/\r\nPicdets=4 $ 15\r\n"
         "LastBkDate=1718452800\r\nRemStatus=1\r\nClkTyp=D\r\nDriveA=/media/floppy\r\n\r\n"
         "[Other]\r\nKey=value\r\n");
    seed("settings", "comments.ini",
         "; settings\n# more\n[other]\nCurrentDir=elsewhere\n\n[ purrlodge ]\n  currentdir = "
         "C:\\Cat Data\\  \nCurrentDir=second\n[Purrlodge]\nProgDir=/opt\n");
    seed("settings", "numbers-extreme.ini",
         "[Purrlodge]\nPicdets=2147483647 $ 2147483647\nLastBkDate=-9223372036854775808\n"
         "LastWarn=99999999999999999999\nCurrentDrive=ABCDEFGH\n");
    seed("settings", "numbers-lowest.ini",
         "[Purrlodge]\nPicdets=-2147483648 $ -2147483648\nLastBkDate=9223372036854775807\n");
    seed("settings", "unfinished.ini", "[Purrlodge\nCurrentDir=/data\r");
    seed("settings", "no-sections.ini", "=\n==\nkey\n[]\n[\n]\n");
    seed("settings", "utf8-mark.ini",
         "\xEF\xBB\xBF[Purrlodge]\r\nCurrentDir=/Katzen/M\xC3\xBCller\r");
    const std::string utf16 = "[Purrlodge]\r\nPicdets=3 $ 9\r\n";
    std::string utf16Bytes = "\xFF\xFE";
    for (const char c : utf16)
        utf16Bytes += std::string{c, '\0'};
    seed("settings", "utf16-mark.ini", utf16Bytes);

    seed("dates", "good.txt", "01/03/09\n22/03/09\n29/02/24\n5/6/10\n31/12/99\n1/1/00\n");
    seed("dates", "no-such-day.txt", "99/99/99\n31/02/24\n0/0/0\n//\n/\n\n");
    seed("dates", "year-highest.txt",
         "31/02/2147483647\n01/01/2147483647\n2147483647/2147483647/2147483647\n");
    seed("dates", "year-lowest.txt",
         "1/1/-2147483648\n-2147483648/-2147483648/-2147483648\n01/01/99999999999\n");

    const std::string client =
        "1y1\nMrs\nAnne\nSmith\n1 Mill Lane\n\nFrome\nBA11 1XY\n01632 960001\n07700 900001\n"
        "Castle Vets\nanne@example.com\nNeeds tablets\n\n#R# Shy\n\nFish\n\n\nMilk\n\n\n3\n"
        "02/02/23\n09/02/23\n"
        "Tigger\nMoggy\nGrey\n2010\nM\nC+I-\n06/23\n"
        "Smudge2\nMoggy\nBlack\n1900\nf\nc-\n12/99\n";
    seed("client_form", "good.txt", client);
    seed("client_form", "numbers-extreme.txt",
         "n\n\nA\nSmith\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n2147483648\n\n\n"
         "Tigger\n\n\n-2147483648\nMm\nci+-/\n2147483647/99\n"
         "Pig\n\n\n2147483647\n\n\n99/-2147483648\n"
         "\n\n\n\n\n\nx/y\n");
    seed("client_form", "rename.txt",
         "y\nMr\nBob\nSmithers\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n-1\n\n\n"
         "Tiger\n\n\n2011\nm\n\n13/24\n\n\n\n\n\n\n\nPiggy\n");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " corpus-folder\n";
        return 2;
    }
    corpus = argv[1];
    indexSeeds();
    clientRecordSeeds();
    stayAndRatesSeeds();
    catteryFilesSeeds();
    otherCatsSeeds();
    textSeeds();
    return 0;
}
