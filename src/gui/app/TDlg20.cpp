#include "gui/app/TDlg20.h"

namespace purrlodge {

TDlg20::TDlg20(QWidget* parent)
    : HelpPage(
          QStringLiteral("changeDataDirectoryHelpDialog"),
          QStringLiteral("How to Change Data Directory"),
          QStringLiteral(
              "All of your cattery's records live in one folder, the data folder. The folder "
              "in use is shown in the title bar of the main window, after \"Using Data in:\".\n\n"
              "To use another folder:\n"
              "1.  Choose Setup | Change Data Set.\n"
              "2.  Type the folder, or press Browse and pick it.\n"
              "3.  Press OK. If the folder already holds Purrlodge data you are asked whether "
              "to use it; if it does not exist yet, Purrlodge offers to make it.\n"
              "4.  Purrlodge closes. Start it again and it works with the new folder.\n\n"
              "A new, empty folder starts a new data set: Purrlodge asks for your cattery's "
              "details and rates the first time it starts there.\n\n"
              "Nothing is moved or deleted: your old folder keeps its data, and you can change "
              "back to it in the same way at any time.\n\n"
              "To move your data to another computer, back it up here (Good-Housekeeping | "
              "Backup My Data), restore it there, and point Purrlodge at that folder."),
          62, parent)
{}

} // namespace purrlodge
