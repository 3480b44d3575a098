#include "gui/clients/TDlg39.h"

namespace purrlodge {

TDlg39::TDlg39(QWidget* parent)
    : HelpPage(
          QStringLiteral("globalSearchHelpDialog"), QStringLiteral("Help on Global Search"),
          QStringLiteral(
              "Global Search looks through every client's details for a word or part of a "
              "word, for example a street, a vet, a colour or a food.\n\n"
              "Type the text to look for. \"Case specific\" finds it only written exactly so; "
              "\"Case independent\" finds it in upper or lower case alike (telephone and mobile "
              "numbers are always compared as typed).\n\n"
              "Tick the kinds of entry to look in (\"Tick all\" and \"Untick all\" set them all "
              "at once) and press Search. Each entry that holds the text is listed with the "
              "client's surname and first name and where it was found.\n\n"
              "Select a line and press \"Show Details\" to see that client's full details."),
          80, parent)
{}

} // namespace purrlodge
