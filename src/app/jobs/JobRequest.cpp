#include "app/jobs/JobRequest.h"

#include <algorithm>
#include <map>
#include <set>

#include "app/jobs/JobHelp.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

// The options that take a value, and the flags that stand alone.
const std::set<std::string, std::less<>> valueOptions = {
    "--data", "--to", "--style", "--number", "--pdf", "--client", "--from"};
const std::set<std::string, std::less<>> flagOptions = {"--verbose", "--help", "--copy"};

// What each job accepts beyond --data, --verbose and --help.
const std::set<std::string, std::less<>>& optionsOf(JobKind job)
{
    static const std::map<JobKind, std::set<std::string, std::less<>>> options = {
        {JobKind::Backup, {"--to"}},
        {JobKind::ExportAddresses, {"--style"}},
        {JobKind::ExportEmails, {}},
        {JobKind::Account, {"--number", "--pdf", "--copy", "--client"}},
        {JobKind::Check, {}},
        {JobKind::Stats, {"--from", "--to"}},
    };
    return options.at(job);
}

struct Words {
    std::vector<std::string> positional;
    std::map<std::string, std::string, std::less<>> options;
    std::string error;
};

Words splitWords(const std::vector<std::string>& arguments)
{
    Words words;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (!word.starts_with("-") || word == "-") {
            words.positional.push_back(windows1252FromUtf8(word));
            continue;
        }
        std::string name = word == "-h" ? "--help" : word == "-v" ? "--verbose" : word;
        std::optional<std::string> value;
        if (const std::size_t equals = name.find('='); equals != std::string::npos) {
            value = name.substr(equals + 1);
            name.resize(equals);
        }
        if (flagOptions.contains(name)) {
            if (value) {
                words.error = name + " takes no value";
                return words;
            }
            words.options[name] = "";
            continue;
        }
        if (!valueOptions.contains(name)) {
            words.error = "unknown option " + name;
            return words;
        }
        if (!value) {
            if (i + 1 == arguments.size()) {
                words.error = name + " needs a value";
                return words;
            }
            value = arguments[++i];
        }
        words.options[name] = windows1252FromUtf8(*value);
    }
    return words;
}

// A whole number above zero, all digits.
std::optional<int> positiveNumber(std::string_view text)
{
    if (text.empty() || text.size() > 9 ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    const int number = std::stoi(std::string(text));
    return number > 0 ? std::optional<int>(number) : std::nullopt;
}

std::optional<JobKind> jobNamed(const std::vector<std::string>& positional, std::string& error)
{
    const std::string& name = positional.front();
    if (name == "backup")
        return JobKind::Backup;
    if (name == "check")
        return JobKind::Check;
    if (name == "stats")
        return JobKind::Stats;
    if (name == "account")
        return JobKind::Account;
    if (name == "export") {
        if (positional.size() < 2) {
            error = "export needs what to export: addresses or emails";
            return std::nullopt;
        }
        if (positional[1] == "addresses")
            return JobKind::ExportAddresses;
        if (positional[1] == "emails")
            return JobKind::ExportEmails;
        error = "export knows addresses and emails, not " + positional[1];
        return std::nullopt;
    }
    error = "unknown job " + name + " (backup, export, account, check or stats)";
    return std::nullopt;
}

std::string jobWord(JobKind job)
{
    switch (job) {
    case JobKind::Backup:
        return "backup";
    case JobKind::ExportAddresses:
        return "export addresses";
    case JobKind::ExportEmails:
        return "export emails";
    case JobKind::Account:
        return "account";
    case JobKind::Check:
        return "check";
    case JobKind::Stats:
        return "stats";
    }
    return {};
}

// The job's own options read into the request; the first problem, if any.
std::string readJobOptions(JobRequest& request, const Words& words)
{
    const auto option = [&words](std::string_view name) -> const std::string* {
        const auto found = words.options.find(name);
        return found == words.options.end() ? nullptr : &found->second;
    };
    for (const auto& [name, value] : words.options) {
        if (name != "--data" && name != "--verbose" && name != "--help" &&
            !optionsOf(request.kind).contains(name))
            return jobWord(request.kind) + " does not take " + name;
    }
    switch (request.kind) {
    case JobKind::Backup:
        if (const std::string* to = option("--to")) {
            if (to->empty())
                return "--to needs a folder";
            request.backupFolder = *to;
        }
        break;
    case JobKind::ExportAddresses:
        if (const std::string* style = option("--style")) {
            if (*style == "cats")
                request.labelStyle = LabelStyle::CatCareOf;
            else if (*style != "plain")
                return "--style is plain or cats, not " + *style;
        }
        break;
    case JobKind::Account: {
        const std::string* number = option("--number");
        const std::string* pdf = option("--pdf");
        if (!number || !pdf)
            return "account needs --number N and --pdf FILE";
        const std::optional<int> receipt = positiveNumber(*number);
        if (!receipt)
            return "--number must be a whole number above 0, not " + *number;
        if (pdf->empty())
            return "--pdf needs a file name";
        request.accountNumber = *receipt;
        request.pdfFile = *pdf;
        request.accountCopy = option("--copy") != nullptr;
        if (const std::string* client = option("--client"))
            request.clientCode = *client;
        break;
    }
    case JobKind::Stats: {
        const std::string* from = option("--from");
        const std::string* to = option("--to");
        if (!from || !to)
            return "stats needs --from DD/MM/YY and --to DD/MM/YY";
        request.from = *from;
        request.to = *to;
        break;
    }
    case JobKind::ExportEmails:
    case JobKind::Check:
        break;
    }
    return {};
}

} // namespace

ParsedArguments parseJobArguments(const std::vector<std::string>& arguments)
{
    ParsedArguments parsed;
    const Words words = splitWords(arguments);
    if (!words.error.empty()) {
        parsed.error = words.error;
        return parsed;
    }
    const bool wantsHelp = words.options.contains("--help");
    if (words.positional.empty()) {
        if (wantsHelp)
            parsed.help = jobHelpText(std::nullopt);
        else
            parsed.error = "no job given: backup, export, account, check or stats";
        return parsed;
    }
    const std::optional<JobKind> job = jobNamed(words.positional, parsed.error);
    if (!job)
        return parsed;
    if (wantsHelp) {
        parsed.help = jobHelpText(*job);
        return parsed;
    }
    const std::size_t jobWords = words.positional.front() == "export" ? 2 : 1;
    if (words.positional.size() > jobWords) {
        parsed.error = "unexpected " + words.positional[jobWords];
        return parsed;
    }
    JobRequest request;
    request.kind = *job;
    request.verbose = words.options.contains("--verbose");
    if (const auto data = words.options.find("--data"); data != words.options.end()) {
        if (data->second.empty()) {
            parsed.error = "--data needs a folder";
            return parsed;
        }
        request.dataFolder = data->second;
    }
    parsed.error = readJobOptions(request, words);
    if (parsed.error.empty())
        parsed.request = request;
    return parsed;
}

} // namespace purrlodge
