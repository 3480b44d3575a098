// Every data file is a byte-exact image of its record. These tests write one
// field at a time into a zeroed record and check that the bytes land exactly
// where the file format puts them, in little-endian order.
#include <bit>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "accounts/AccountBook.h"
#include "accounts/ColourBlock.h"
#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"
#include "clients/AutoMemo.h"
#include "clients/EarlierCatRecord.h"
#include "clients/OtherCatsFile.h"
#include "store/ClientIndex.h"
#include "store/ClientRecord.h"
#include "store/StayRecord.h"

namespace purrlodge {
namespace {

template <class Record> struct Field {
    std::string name;
    std::size_t offset;
    std::size_t width;
    std::function<void(Record&)> mark;
};

// Marks a text field with one character at its start and one at its end.
#define TEXT(member) [](auto& r) { fill(r.member); }
#define INT(member) [](auto& r) { r.member.set(-0x01020304); }
#define FLOAT(member) [](auto& r) { r.member.set(std::bit_cast<float>(0xC1A2B3C4u)); }

template <std::size_t Width> void fill(FixedText<Width>& field)
{
    field.set(std::string(Width - 1, 'x'));
}

template <class Record>
void expectLayout(std::size_t size, const std::vector<Field<Record>>& fields)
{
    EXPECT_EQ(sizeof(Record), size);
    for (const auto& field : fields) {
        Record record;
        std::memset(&record, 0, sizeof record);
        field.mark(record);
        const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
        std::size_t first = sizeof record, last = 0;
        for (std::size_t i = 0; i < sizeof record; ++i) {
            if (bytes[i] != 0) {
                first = std::min(first, i);
                last = i;
            }
        }
        EXPECT_EQ(first, field.offset) << field.name;
        EXPECT_LT(last, field.offset + field.width) << field.name;
        if (field.width == 4) { // low byte first: 0xFC..0xFE of the int, 0xC4..0xC1 of the float
            EXPECT_EQ(bytes[field.offset + 3], bytes[field.offset] == 0xFC ? 0xFE : 0xC1)
                << field.name << " is not little-endian";
        }
    }
}

TEST(RecordLayout, ClientRecord)
{
    expectLayout<ClientRecord>(2763,
                               {{"catExtraCode[0]", 0, 5, TEXT(catExtraCode[0])},
                                {"catExtraCode[5]", 25, 5, TEXT(catExtraCode[5])},
                                {"code", 30, 9, TEXT(code)},
                                {"style", 39, 9, TEXT(style)},
                                {"firstName", 48, 25, TEXT(firstName)},
                                {"address[0]", 73, 37, TEXT(address[0])},
                                {"address[3]", 184, 37, TEXT(address[3])},
                                {"catColour[0]", 221, 25, TEXT(catColour[0])},
                                {"telephone", 371, 25, TEXT(telephone)},
                                {"vet", 396, 25, TEXT(vet)},
                                {"surname", 421, 25, TEXT(surname)},
                                {"catName[0]", 596, 13, TEXT(catName[0])},
                                {"catName[5]", 661, 13, TEXT(catName[5])},
                                {"catBreed[0]", 674, 13, TEXT(catBreed[0])},
                                {"arrivalDate", 752, 13, TEXT(arrivalDate)},
                                {"departureDate", 765, 13, TEXT(departureDate)},
                                {"lastInDate", 778, 13, TEXT(lastInDate)},
                                {"lastOutDate", 791, 13, TEXT(lastOutDate)},
                                {"notes[0]", 804, 81, TEXT(notes[0])},
                                {"notes[3]", 1047, 81, TEXT(notes[3])},
                                {"email", 1128, 81, TEXT(email)},
                                {"mobile", 1209, 81, TEXT(mobile)},
                                {"catBirthYear[0]", 1695, 4, INT(catBirthYear[0])},
                                {"catSex[1]", 1723, 4, INT(catSex[1])},
                                {"catMicrochip[0]", 1743, 4, INT(catMicrochip[0])},
                                {"reservedNumber", 1767, 4, INT(reservedNumber)},
                                {"inactive", 1771, 4, INT(inactive)},
                                {"reservedNumbers[7]", 1803, 4, INT(reservedNumbers[7])},
                                {"catLastVaccination[0]", 1807, 4, INT(catLastVaccination[0])},
                                {"firstRegistered", 1831, 4, INT(firstRegistered)},
                                {"knownRating", 1835, 4, INT(knownRating)},
                                {"catInsurance[5]", 1859, 4, INT(catInsurance[5])},
                                {"favouriteFoods[0][0]", 1863, 25, TEXT(favouriteFoods[0][0])},
                                {"favouriteFoods[1][0]", 1938, 25, TEXT(favouriteFoods[1][0])},
                                {"forbiddenFoods[0][0]", 2313, 25, TEXT(forbiddenFoods[0][0])},
                                {"forbiddenFoods[5][2]", 2738, 25, TEXT(forbiddenFoods[5][2])}});
}

TEST(RecordLayout, ClientIndexAndStay)
{
    expectLayout<ClientIndex>(20416, {{"formatStamp", 0, 4, INT(formatStamp)},
                                      {"count", 4, 4, INT(count)},
                                      {"backupReminderMode", 8, 4, INT(backupReminderMode)},
                                      {"lastAccountNumber", 12, 4, INT(lastAccountNumber)},
                                      {"entries[0].key", 16, 25, TEXT(entries[0].key)},
                                      {"entries[1].code", 75, 9, TEXT(entries[1].code)},
                                      {"entries[599].code", 20407, 9, TEXT(entries[599].code)}});
    expectLayout<StayRecord>(1049,
                             {{"arrivalDate", 0, 25, TEXT(arrivalDate)},
                              {"departureRemark", 75, 25, TEXT(departureRemark)},
                              {"textLine2", 181, 81, TEXT(textLine2)},
                              {"furtherLines[3]", 505, 81, TEXT(furtherLines[3])},
                              {"dialogText", 586, 324, TEXT(dialogText)},
                              {"arrivalWeekday", 910, 13, TEXT(arrivalWeekday)},
                              {"departureWeekday", 923, 26, TEXT(departureWeekday)},
                              {"number", 949, 4, INT(number)},
                              {"catInStay[5]", 973, 4, INT(catInStay[5])},
                              {"length", 977, 4, INT(length)},
                              {"catAge[0]", 981, 4, INT(catAge[0])},
                              {"standardExtraChosen[2]", 1029, 4, INT(standardExtraChosen[2])}});
}

TEST(RecordLayout, CatteryRecords)
{
    expectLayout<EstablishmentRecord>(1620,
                                      {{"name", 0, 81, TEXT(name)},
                                       {"address[3]", 405, 81, TEXT(address[3])},
                                       {"vaccinationYears", 729, 81, TEXT(vaccinationYears)},
                                       {"arrivalSheetLine[2]", 972, 81, TEXT(arrivalSheetLine[2])},
                                       {"namesOnAccounts", 1053, 81, TEXT(namesOnAccounts)},
                                       {"managerTypeSize", 1134, 81, TEXT(managerTypeSize)},
                                       {"chequesPayableTo", 1215, 81, TEXT(chequesPayableTo)},
                                       {"chequesColour", 1296, 162, TEXT(chequesColour)},
                                       {"colourPrinting", 1458, 81, TEXT(colourPrinting)},
                                       {"displayFlags", 1539, 81, TEXT(displayFlags)}});
    expectLayout<ColourBlock>(8500, {{"scheme", 0, 4, INT(scheme.raw)}});
    expectLayout<RatesRecord>(473, {{"presentRate[0]", 0, 4, FLOAT(presentRate[0])},
                                    {"presentRate[5]", 20, 4, FLOAT(presentRate[5])},
                                    {"standardExtraCharge", 24, 4, FLOAT(standardExtraCharge)},
                                    {"previousRate[0]", 36, 4, FLOAT(previousRate[0])},
                                    {"currency", 60, 4, INT(currency.raw)},
                                    {"perDay", 64, 4, INT(perDay.raw)},
                                    {"markedInactiveCount", 68, 4, INT(markedInactiveCount.raw)},
                                    {"standardExtraName", 76, 106, TEXT(standardExtraName)},
                                    {"rateChangeTime", 344, 4, INT(rateChangeTime)},
                                    {"accountNote", 352, 121, TEXT(accountNote)}});
    expectLayout<ExchangeRateRecord>(
        8, {{"pencePerEuro", 0, 4, FLOAT(pencePerEuro)}, {"showEuros", 4, 4, INT(showEuros.raw)}});
}

TEST(RecordLayout, AccountRecordAndBook)
{
    expectLayout<AccountRecord>(
        906, {{"daysCharged", 0, 4, INT(daysCharged)},
              {"receiptNumber", 4, 4, INT(receiptNumber)},
              {"catsBoarded", 12, 4, INT(catsBoarded)},
              {"standardExtraCharged", 24, 4, INT(standardExtraCharged)},
              {"omitCopy", 36, 4, INT(omitCopy)},
              {"catNotBoarded[5]", 64, 4, INT(catNotBoarded[5])},
              {"arrivalDate", 68, 25, TEXT(arrivalDate)},
              {"newRateStartDate", 143, 25, TEXT(newRateStartDate)},
              {"catNames[5]", 318, 25, TEXT(catNames[5])},
              {"extrasDescription", 343, 81, TEXT(extrasDescription)},
              {"discountDescription", 505, 81, TEXT(discountDescription)},
              {"extrasAmount", 829, 4, FLOAT(extrasAmount)},
              {"finalBalance", 849, 4, FLOAT(finalBalance)},
              {"boardAtOldRate", 857, 4, FLOAT(boardAtOldRate)},
              {"rateUsed", 873, 4, FLOAT(rateUsed)},
              {"filedTime", 893, 4, INT(filedTime)},
              {"pencePerEuroWhole", 901, 4, INT(pencePerEuroWhole)},
              {"currencySign", 905, 1, [](AccountRecord& r) { r.currencySign = 0xA3; }}});
    expectLayout<AccountBook>(9064,
                              {{"header", 0, 4, INT(header)},
                               {"accounts[0].daysCharged", 4, 4, INT(accounts[0].daysCharged)},
                               {"accounts[9].currencySign", 9063, 1,
                                [](AccountBook& r) { r.accounts[9].currencySign = '$'; }}});
}

TEST(RecordLayout, ClientNoteFiles)
{
    expectLayout<OtherCatRecord>(377, {{"sex", 0, 4, INT(sex)},
                                       {"colour", 8, 25, TEXT(colour)},
                                       {"name", 33, 13, TEXT(name)},
                                       {"breed", 46, 13, TEXT(breed)},
                                       {"notes", 59, 81, TEXT(notes)},
                                       {"history", 221, 81, TEXT(history)},
                                       {"reason", 352, 25, TEXT(reason)}});
    expectLayout<OtherCatsFile>(
        3774, {{"header", 0, 4, INT(header)}, {"cats[9].reason", 3749, 25, TEXT(cats[9].reason)}});
    expectLayout<EarlierCatRecord>(292, {{"sex", 0, 4, INT(sex)},
                                         {"colour", 4, 25, TEXT(colour)},
                                         {"name", 29, 13, TEXT(name)},
                                         {"breed", 42, 13, TEXT(breed)},
                                         {"note", 55, 162, TEXT(note)},
                                         {"dateOfBirth", 217, 25, TEXT(dateOfBirth)},
                                         {"notifiedValue", 242, 25, TEXT(notifiedValue)},
                                         {"notifiedTo", 267, 25, TEXT(notifiedTo)}});
    expectLayout<AutoMemo>(1001, {{"text", 0, 1001, TEXT(text)}});
}

TEST(RecordLayout, FixedTextKeepsItsTerminator)
{
    FixedText<5> field;
    field.set("abcdefgh");
    EXPECT_EQ(field.str(), "abcd");
    EXPECT_EQ(field.bytes[4], 0);

    // A field with no terminator (a damaged file) is read to its end, never beyond.
    std::memset(field.bytes, 'z', sizeof field.bytes);
    EXPECT_EQ(field.str(), "zzzzz");
}

} // namespace
} // namespace purrlodge
