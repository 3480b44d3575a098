#pragma once

#include <string>

#include <QDialog>

#include "clients/ClientFinder.h"

class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Client Index" (DIALOG 4): the client finder's name entry. The person types
// a name and says whether it is a person's or a cat's; OK accepts, Cancel
// rejects, Help opens DIALOG 7. In the cat-only mode "Search for Person" is
// hidden.
class TDlg4 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg4(const FinderOptions& options, QWidget* parent = nullptr);

    // The name as typed, 1252 bytes.
    [[nodiscard]] std::string name() const;
    [[nodiscard]] FinderSearch search() const;

    // Shows the entries as typed before (a refused name, to be put right).
    void showEntry(const std::string& name, FinderSearch search);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showHelp();

    QLineEdit* nameEdit_;             // 102
    QRadioButton* personRadioButton_; // 103
    QRadioButton* catRadioButton_;    // 104
};

} // namespace purrlodge
