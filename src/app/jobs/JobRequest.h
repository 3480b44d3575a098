#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "housekeeping/AddressFile.h"

namespace purrlodge {

// The unattended jobs of purrlodge-cli.
enum class JobKind { Backup, ExportAddresses, ExportEmails, Account, Check, Stats };

// One run of purrlodge-cli as its arguments ask for it. Text is 1252, as
// everywhere in the core.
struct JobRequest {
    JobKind kind = JobKind::Check;
    std::string dataFolder; // --data; empty: the data folder in the settings
    bool verbose = false;
    std::string backupFolder; // backup --to; empty: where Backup My Data last went
    LabelStyle labelStyle = LabelStyle::Plain;
    int accountNumber = 0;    // account --number
    std::string pdfFile;      // account --pdf
    bool accountCopy = false; // account --copy: the cattery's copy, not the client's page
    std::string clientCode;   // account --client
    std::string from;         // stats --from
    std::string to;           // stats --to
};

// What the arguments ask for: a job, a help text to print, or the one-line
// reason they cannot be understood.
struct ParsedArguments {
    std::optional<JobRequest> request;
    std::optional<std::string> help;
    std::string error;
};

// Reads the arguments after the program's name. The options --data and
// --verbose may stand anywhere; "--name value" and "--name=value" both work.
[[nodiscard]] ParsedArguments parseJobArguments(const std::vector<std::string>& arguments);

} // namespace purrlodge
