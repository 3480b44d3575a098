#include "gui/clients/TDlg56.h"

namespace purrlodge {

TDlg56::TDlg56(QWidget* parent)
    : HelpPage(QStringLiteral("clientDeletionHelpDialog"),
               QStringLiteral("Help about Client deletion "),
               QStringLiteral("Permanently remove: every file kept for this client (the client's "
                              "record, accounts, notes and memo) is deleted. This cannot be "
                              "undone.\n\n"
                              "Transfer: the client's files are kept, but the client no longer "
                              "appears among your clients. The client is listed under View Past "
                              "Clients, from where the client can be restored, or removed for "
                              "good later."),
               50, parent)
{}

} // namespace purrlodge
