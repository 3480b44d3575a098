#pragma once

namespace purrlodge::command {

// Every menu item and tool-bar button is one of these ids; the main window's
// command table maps each to its action. The numbers are the program's own and
// stay as they are.

// Setup
inline constexpr int setAccountNumber = 943;
inline constexpr int setPrintingOptions = 11869;
inline constexpr int catteryDetails = 11843;
inline constexpr int printDialogOnOff = 11849;
inline constexpr int euroExchangeRate = 11846;
inline constexpr int setAutoMemo = 11868; // in Setup and in Tasks, spelt differently
inline constexpr int setAccountNote = 11882;
inline constexpr int setStandardExtra = 11880;
inline constexpr int setRates = 942;
inline constexpr int showPicNoteIndicator = 11875;
inline constexpr int digitalClock = 11861;
inline constexpr int setupPrinter = 11844;
inline constexpr int changeDataSet = 11842;

// Tasks
inline constexpr int seeClientDetails = 11859;
inline constexpr int editClientDetails = 11854;
inline constexpr int newClient = 11853;
inline constexpr int deleteClient = 11852;
inline constexpr int listAllClients = 11855;
inline constexpr int makeArrivalSheet = 11857;
inline constexpr int issueAccount = 11851;
inline constexpr int findNumberedAccount = 11867;
inline constexpr int globalSearch = 11777;
inline constexpr int viewPastAccounts = 11850;
inline constexpr int viewPastClients = 11864;
inline constexpr int makeNotes = 11866;
inline constexpr int exitProgram = 18873;

// Good-Housekeeping
inline constexpr int backupMyData = 11858;
inline constexpr int restoreDataFromBackup = 11871;
inline constexpr int showLastBackup = 11860;
inline constexpr int remindMe = 11856;
inline constexpr int wheresMyStuff = 11872;
inline constexpr int fileClientEmails = 11883;
inline constexpr int fileClientAddresses = 11863;

// Special Operations
inline constexpr int countCatNames = 11877;
inline constexpr int markInactiveClients = 11884;
inline constexpr int listUniqueNames = 11881;
inline constexpr int clientUsage = 11874;

// Print Jobs
inline constexpr int printCurrentRates = 11879;
inline constexpr int clientLists = 11878;
// Print Jobs | Admission Register: a command of this program's own, so its id
// lies past the others.
inline constexpr int admissionRegister = 11890;

// Help
inline constexpr int setupHelp = 11845;
inline constexpr int backupAdvice = 11862;
inline constexpr int seePictureNotes = 11876;
inline constexpr int colourPrintingHelp = 11870;
inline constexpr int deletingAClientHelp = 11865;
inline constexpr int changeDataDirectoryHelp = 11848;
inline constexpr int emergencyHelp = 11873;
inline constexpr int about = 11847;

// Tool bar only: runs the printout that is waiting, when one is.
inline constexpr int runPendingPrintout = 21861;

// No menu item: an enabler that follows a flag of the printing code.
inline constexpr int pendingPrintFlag = 24332;

} // namespace purrlodge::command
