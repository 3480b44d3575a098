#include "accounts/AccountListings.h"
#include "app/Session.h"
#include "app/commands/Printing.h"
#include "app/jobs/UnattendedJobs.h"
#include "store/ClientFiles.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

std::string codesOf(const std::vector<FiledAccount>& accounts)
{
    std::string codes;
    for (const FiledAccount& filed : accounts)
        codes += (codes.empty() ? "" : ", ") + filed.code;
    return codes;
}

} // namespace

JobOutcome runAccountJob(Session& session, const JobRequest& request, const JobOutput& output)
{
    const std::string number = std::to_string(request.accountNumber);
    std::vector<FiledAccount> found = accountsNumbered(session.folder, request.accountNumber);
    if (!request.clientCode.empty())
        std::erase_if(found, [&request](const FiledAccount& filed) {
            return toUpper(filed.code) != toUpper(request.clientCode);
        });
    if (found.empty())
        return {jobExit::failed,
                "no account numbered " + number + " is filed" +
                    (request.clientCode.empty() ? "" : " for client " + request.clientCode)};
    if (found.size() > 1)
        return {jobExit::failed, "accounts numbered " + number + " are filed for " +
                                     codesOf(found) + ": choose one with --client CODE"};

    session.clientCode = found.front().code;
    readClientRecord(session.folder, session.clientCode, session.client);
    session.account = found.front().account;
    output.progress("Account No. " + number + " of " + session.clientCode);
    const bool printed =
        request.accountCopy ? reprintAccountCopy(session) : reprintPastAccount(session);
    if (!printed)
        return {jobExit::failed, "the account could not be written to " + request.pdfFile};
    output.result(std::string(request.accountCopy ? "The copy of account No. " : "Account No. ") +
                  number + " of " + session.clientCode + " written to " + request.pdfFile);
    return {};
}

} // namespace purrlodge
