#include "gui/clients/FinderDialogs.h"

#include "gui/clients/TDlg2.h"
#include "gui/clients/TDlg4.h"

namespace purrlodge {

std::optional<FinderEntry> askClientNameInDialog(const FinderOptions& options,
                                                 const FinderEntry& shown, QWidget* parent)
{
    TDlg4 dialog(options, parent);
    dialog.showEntry(shown.name, shown.search);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return FinderEntry{dialog.name(), dialog.search()};
}

std::optional<int> chooseMatchInDialog(const FinderResult& result, QWidget* parent)
{
    TDlg2 dialog(result, parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.chosenMatch();
}

} // namespace purrlodge
