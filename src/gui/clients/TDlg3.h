#pragma once

#include <array>
#include <functional>
#include <vector>

#include "clients/ClientForm.h"
#include "gui/FormDialog.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;

namespace purrlodge {

// "Full Client Information" (DIALOG 3): a client's details and up to six cats,
// for a new client or an existing one. A thin view over ClientForm: OK hands
// the entries to the accept function, whose verdict decides whether the form
// closes or stays open as typed; Help opens DIALOG 27.
class TDlg3 : public FormDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const ClientForm&)>;

    TDlg3(const ClientForm& initial, AcceptForm acceptForm, QWidget* parent = nullptr);

    // The entries as they stand, in the mode the form was opened in.
    [[nodiscard]] ClientForm form() const;

private:
    // The seven boxes of one row of the cat grid, in column order.
    struct CatRow {
        QLineEdit* name;
        QLineEdit* breed;
        QLineEdit* colour;
        QLineEdit* birthYear;
        QLineEdit* sex;
        QLineEdit* chipInsurance;
        QLineEdit* lastVaccination;

        [[nodiscard]] std::array<QLineEdit*, 7> boxes() const
        {
            return {name, breed, colour, birthYear, sex, chipInsurance, lastVaccination};
        }
    };

    QGroupBox* buildClientBox();
    QGroupBox* buildCatsBox();
    QGroupBox* buildHistoryBox();
    QGroupBox* buildFoodsBox();
    QGroupBox* buildNotesBox();
    void setKeyboardOrder(const std::vector<QWidget*>& buttons);
    void fill(const ClientForm& form);
    void showNoteColour(int line);
    void showHelp();

    ClientFormMode mode_;

    QLineEdit* surnameEdit_ = nullptr;
    QLineEdit* firstNameEdit_ = nullptr;
    QLineEdit* styleEdit_ = nullptr;
    std::array<QLineEdit*, 4> addressEdit_{};
    QLineEdit* telephoneEdit_ = nullptr;
    QLineEdit* mobileEdit_ = nullptr;
    QLineEdit* emailEdit_ = nullptr;
    QLineEdit* vetEdit_ = nullptr;
    std::array<CatRow, catSlotCount> catRows_{};
    QLineEdit* knownEdit_ = nullptr;
    QLineEdit* lastInEdit_ = nullptr;
    QLineEdit* lastOutEdit_ = nullptr;
    std::array<QLineEdit*, 4> noteEdit_{};
    std::array<QCheckBox*, 4> redNoteCheckBox_{};
    std::array<QLineEdit*, foodsPerCat> favouriteFoodEdit_{};
    std::array<QLineEdit*, foodsPerCat> forbiddenFoodEdit_{};
};

} // namespace purrlodge
