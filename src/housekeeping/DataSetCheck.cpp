#include "housekeeping/DataSetCheck.h"

#include <filesystem>
#include <map>
#include <optional>

#include "accounts/AccountBook.h"
#include "accounts/CatteryFiles.h"
#include "accounts/ColourBlock.h"
#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"
#include "clients/AutoMemo.h"
#include "clients/OtherCatsFile.h"
#include "housekeeping/BackupScan.h"
#include "ports/Ui.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexRepair.h"
#include "store/SafeFile.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// The check tells nothing while it reads: what it finds is its answer.
class SilentUi : public Ui {
public:
    void showMessage(const Message&) override {}
};

// The block each file is read as, by its name in upper case; the files read
// whole (notes, earlier cats) have no block to outgrow.
std::optional<std::size_t> blockSizeOf(const std::string& upperName)
{
    static const std::map<std::string, std::size_t, std::less<>> catteryFiles = {
        {std::string(establishmentFile), sizeof(EstablishmentRecord)},
        {std::string(colourBlockFile), sizeof(ColourBlock)},
        {std::string(ratesFile), sizeof(RatesRecord)},
        {std::string(exchangeRateFile), sizeof(ExchangeRateRecord)},
    };
    static const std::map<std::string, std::size_t, std::less<>> clientFiles = {
        {std::string(extension::clientRecord), sizeof(ClientRecord)},
        {std::string(extension::stayRecord), sizeof(StayRecord)},
        {std::string(extension::accountBook), sizeof(AccountBook)},
        {std::string(extension::autoMemo), sizeof(AutoMemo)},
        {std::string(extension::otherCats), sizeof(OtherCatsFile)},
    };
    if (const auto cattery = catteryFiles.find(upperName); cattery != catteryFiles.end())
        return cattery->second;
    if (upperName == currentIndexFile || upperName == pastIndexFile)
        return std::nullopt; // the client lists have checks of their own
    const std::size_t dot = upperName.rfind('.');
    if (dot == std::string::npos)
        return std::nullopt;
    const auto client = clientFiles.find(std::string_view(upperName).substr(dot));
    return client == clientFiles.end() ? std::nullopt : std::optional<std::size_t>(client->second);
}

std::string bytes(std::uintmax_t count)
{
    return std::to_string(count) + " bytes";
}

void checkClientEntries(const DataFolder& folder, std::vector<DataSetFinding>& findings)
{
    ClientIndex index{};
    readIndex(folder, index);
    if (!isKnownIndexFormat(index))
        return;
    static_cast<void>(repairIndex(index, folder.fileSize(currentIndexFile).value_or(0)));
    for (const std::string& entry : unsafeCodeEntries(index))
        findings.push_back({std::string(currentIndexFile),
                            entry + " cannot name a file: the client cannot be opened"});
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (!isSafeClientCode(code))
            continue;
        const std::string record = clientFileName(code, extension::clientRecord);
        if (!folder.existsIgnoringCase(record))
            findings.push_back({record, "missing: " + index.entries[entry].key.str() +
                                            " is listed but has no client record"});
    }
}

void checkCatteryRecords(const DataFolder& folder, std::vector<DataSetFinding>& findings)
{
    if (!folder.existsIgnoringCase(establishmentFile))
        findings.push_back({std::string(establishmentFile),
                            "missing: Purrlodge will ask for the cattery's details"});
    if (!folder.existsIgnoringCase(ratesFile))
        findings.push_back({std::string(ratesFile),
                            "missing: no daily rates are set, so no account can be issued"});
}

void checkEveryFile(const DataFolder& folder, std::vector<DataSetFinding>& findings)
{
    for (const std::string& name : filesInFolder(folder.path())) {
        if (name.ends_with(temporaryFileEnding)) {
            findings.push_back({name, "left half written by a crash; the file it was to "
                                      "replace is whole, and Purrlodge removes this one when "
                                      "it next starts"});
            continue;
        }
        const std::optional<std::size_t> block = blockSizeOf(toUpper(name));
        const std::optional<std::uintmax_t> size = folder.fileSize(name);
        if (block && size && isFarLongerThanBlock(*size, *block))
            findings.push_back({name, bytes(*size) + " long, far longer than the " + bytes(*block) +
                                          " it should hold: only the first " + bytes(*block) +
                                          " are read"});
    }
}

} // namespace

std::vector<std::string> clientListDamage(const DataFolder& folder, std::string_view file)
{
    SilentUi silent;
    const DataFolder quiet(folder.path(), silent);
    const std::optional<std::uintmax_t> size = quiet.fileSize(file);
    const bool isPast = file == pastIndexFile;
    if (!size)
        return isPast ? std::vector<std::string>{}
                      : std::vector<std::string>{"missing: this folder holds no client list"};
    ClientIndex index{};
    if (isPast)
        readStoredPastIndex(quiet, index);
    else
        readIndex(quiet, index);
    if (!isKnownIndexFormat(index))
        return {"written in a format this version does not know (stamp " +
                std::to_string(index.formatStamp.get()) + ")"};
    return repairIndex(index, *size).findings;
}

std::vector<DataSetFinding> checkDataSet(const DataFolder& folder)
{
    SilentUi silent;
    const DataFolder quiet(folder.path(), silent);
    std::vector<DataSetFinding> findings;
    for (const std::string_view list : {currentIndexFile, pastIndexFile}) {
        for (std::string& damage : clientListDamage(quiet, list))
            findings.push_back({std::string(list), std::move(damage)});
    }
    checkClientEntries(quiet, findings);
    checkCatteryRecords(quiet, findings);
    checkEveryFile(quiet, findings);
    return findings;
}

} // namespace purrlodge
