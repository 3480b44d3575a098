#pragma once

#include <QDialog>

#include "housekeeping/BackupWhereabouts.h"

namespace purrlodge {

// "Where is my Stuff?" (DIALOG 68): the data folder, the backup folder and
// the program's folder, then the folders as this computer names them; a
// Close button.
class TDlg68 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg68(const StuffWhereabouts& whereabouts, QWidget* parent = nullptr);
};

} // namespace purrlodge
