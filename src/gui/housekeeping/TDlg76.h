#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QDialog>

namespace purrlodge {

class TabbedListBox;

// "Most Popular Names" (DIALOG 76): the list of cat names with their counts,
// with Print, Close and "File the List", which saves the list and leaves it
// open.
class TDlg76 : public QDialog {
    Q_OBJECT

public:
    // lines: 1252 bytes, tabbed.
    TDlg76(const std::vector<std::string>& lines, std::function<void()> fileTheList,
           QWidget* parent = nullptr);

    // Whether the list was closed with Print.
    [[nodiscard]] bool printChosen() const { return printChosen_; }

private:
    void showHelp();

    TabbedListBox* list_; // 101
    bool printChosen_ = false;
};

} // namespace purrlodge
