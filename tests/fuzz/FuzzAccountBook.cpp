// Bytes as a client's account book ("<code>.ACR", 9064 bytes), then the
// client record (2763 bytes), the stay record (1049 bytes) and the rates
// (NRATES.RTS, 473 bytes): the book's readers and lists, the summary of every
// slot, Find Numbered Account, filing and deleting, the similarity question,
// and Account Preparation opened over the client and the stay.

#include <cstddef>
#include <cstdint>
#include <string>

#include "accounts/AccountFiling.h"
#include "accounts/AccountListings.h"
#include "accounts/AccountPreparation.h"
#include "accounts/CatteryFiles.h"
#include "fuzz/FuzzSupport.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "support/FakePorts.h"

using namespace purrlodge;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    constexpr std::string_view code = "SMITHANN";
    fuzzing::Pieces pieces(data, size);
    temp.put(std::string(code) + ".ACR", pieces.take(sizeof(AccountBook)));
    temp.put(std::string(code) + ".DAT", pieces.take(sizeof(ClientRecord)));
    temp.put(std::string(code) + ".TXI", pieces.take(sizeof(StayRecord)));
    temp.put(ratesFile, pieces.take(sizeof(RatesRecord)));

    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(2024, 6, 15);
    DataFolder folder(temp.path(), ui);

    AccountBook book;
    ClientRecord client;
    StayRecord stay;
    RatesRecord rates;
    const bool readable = readAccountBook(folder, code, book);
    readClientRecord(folder, code, client);
    readStayRecord(folder, code, stay);
    loadRates(folder, rates);

    static_cast<void>(clientAccountsList(readable ? &book : nullptr, clock));
    const AccountRecord& newest = book.accounts[accountBookSlots - 1];
    for (const AccountRecord& account : book.accounts) {
        static_cast<void>(accountSummaryLines(client, account, rates));
        static_cast<void>(accountsLookSimilar(account, newest));
        static_cast<void>(similarAccountQuestion(account, newest));
    }
    static_cast<void>(numberedAccountLines(folder, newest.receiptNumber.get()));

    const AccountPreparationForm form =
        openAccountPreparation(client, stay, rates, newest.receiptNumber.get(), false, false);
    static_cast<void>(receiptNumberProblem(form));

    AccountBook changed = book;
    placeAccount(changed, newest, false);
    removeAccount(changed, book.accounts[1].receiptNumber.get());
    placeAccount(changed, book.accounts[0], true);
    return 0;
}
