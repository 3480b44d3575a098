#include "gui/housekeeping/TDlg68.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg68::TDlg68(const StuffWhereabouts& whereabouts, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("whereaboutsDialog"));
    setWindowTitle(QStringLiteral("Where is my Stuff?"));

    auto* texts = new QWidget(this);
    auto* column = new QVBoxLayout(texts);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    const auto addText = [&](const QString& name, const std::string& text) {
        QLabel* label = newStaticLabel(name, texts);
        label->setText(fromWindows1252(text));
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        column->addWidget(label);
    };
    addText(QStringLiteral("dataFolderLabel"), whereabouts.dataFolder);
    addText(QStringLiteral("backupFolderLabel"), whereabouts.backupFolder);
    addText(QStringLiteral("programFolderLabel"), whereabouts.programFolder);
    addText(QStringLiteral("onThisComputerLabel"), whereabouts.onThisComputer);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Close);

    layOutAboveButtons(this, texts, buttons);
}

} // namespace purrlodge
