#include "app/jobs/JobHelp.h"

namespace purrlodge {

namespace {

constexpr const char* usageLines =
    "Usage: purrlodge-cli [--data FOLDER] [--verbose] JOB [OPTIONS]\n"
    "       purrlodge-cli JOB --help\n";

constexpr const char* introduction =
    "Runs Purrlodge's housekeeping without a window, for timers and scripts. It works on\n"
    "the data folder Purrlodge uses (CurrentDir in ~/.config/HEARTH.INI), never shows a\n"
    "dialog, writes only what the job names, and prints a single line on standard error\n"
    "when it fails.\n";

constexpr const char* backupHelp =
    "  backup [--to FOLDER]\n"
    "      Copies every file of the data folder into FOLDER, as Backup My Data does to\n"
    "      another drive: the files FOLDER already holds are deleted first (only files;\n"
    "      sub-folders stay), and the date of the last backup is set. Without --to, the\n"
    "      folder Backup My Data last backed up to. A FOLDER that holds files but no\n"
    "      client list (FIDEX.CTL) is not a former backup and is never cleared. Nothing\n"
    "      is deleted when the data would not fit.\n";

constexpr const char* exportHelp =
    "  export addresses [--style plain|cats]\n"
    "      Writes the names and addresses of the current clients to Clientlist.txt in the\n"
    "      data folder, as File Client Addresses does. Each label begins with the owner's\n"
    "      title and name (plain, the default) or with the cats' names and \"c\\o\" the\n"
    "      owner (cats).\n"
    "  export emails\n"
    "      Writes the current clients' e-mail addresses to ClientEmails.txt in the data\n"
    "      folder, as File Client Emails does.\n";

constexpr const char* accountHelp =
    "  account --number N --pdf FILE [--copy] [--client CODE]\n"
    "      Prints the filed account numbered N to the PDF file FILE, as View Past\n"
    "      Accounts reprints it (\"Past Account\"), or with --copy the cattery's shorter\n"
    "      copy of it. When accounts of that number are filed for more than one client,\n"
    "      --client names the one (its client code, as Find Numbered Account shows it).\n";

constexpr const char* checkHelp =
    "  check\n"
    "      Reads every file of the data set and lists what is damaged: a client list\n"
    "      whose count or entries disagree, client codes that cannot name a file, files\n"
    "      far longer than they should be, clients without a record, missing cattery\n"
    "      files and files a crash left half written. Changes nothing; Purrlodge repairs\n"
    "      what it can when it next starts. One line per finding on standard output.\n";

constexpr const char* statsHelp =
    "  stats --from DD/MM/YY --to DD/MM/YY\n"
    "      Prints the figures of the period reports as CSV on standard output: a row\n"
    "      for each month of the period and a row of totals. Money is in the currency's\n"
    "      main unit with two decimals. An account belongs to the month it arrived in.\n";

constexpr const char* commonOptions =
    "Options for every job:\n"
    "  --data FOLDER   work on this data folder instead of the one in the settings\n"
    "  --verbose       say on standard error what is being done\n"
    "  --help          this text; after a job, that job's part of it\n";

constexpr const char* exitCodes =
    "Exit codes:\n"
    "  0  done (check: no damage found)\n"
    "  1  the job failed; the line on standard error says why\n"
    "  2  the arguments could not be understood\n"
    "  3  no data folder, no client list in it, or a damaged client list (run check,\n"
    "     then start Purrlodge to repair it)\n"
    "  4  check found damage\n"
    "  5  the backup would not fit where it is to go; nothing was deleted\n";

constexpr const char* example = "Example, a backup to a memory stick every night:\n"
                                "  purrlodge-cli backup --to /media/stick/MyCatData\n";

std::string jobSection(JobKind job)
{
    switch (job) {
    case JobKind::Backup:
        return backupHelp;
    case JobKind::ExportAddresses:
    case JobKind::ExportEmails:
        return exportHelp;
    case JobKind::Account:
        return accountHelp;
    case JobKind::Check:
        return checkHelp;
    case JobKind::Stats:
        return statsHelp;
    }
    return {};
}

} // namespace

std::string jobHelpText(std::optional<JobKind> job)
{
    if (job)
        return std::string(usageLines) + "\n" + jobSection(*job) + "\n" + commonOptions + "\n" +
               exitCodes;
    return std::string(usageLines) + "\n" + introduction + "\nJobs:\n" + backupHelp + exportHelp +
           accountHelp + checkHelp + statsHelp + "\n" + commonOptions + "\n" + exitCodes + "\n" +
           example;
}

} // namespace purrlodge
