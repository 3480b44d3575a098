#include "gui/clients/TDlg2.h"

#include <algorithm>

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg2::TDlg2(const FinderResult& result, QWidget* parent)
    : QDialog(parent), matchCount_(static_cast<int>(result.matches.size()))
{
    setObjectName(QStringLiteral("matchingClientsDialog"));
    setWindowTitle(QStringLiteral("Matching Clients"));

    auto* rows = new QGridLayout;
    auto* choices = new QButtonGroup(this);
    const int shown = static_cast<int>(result.rows.size());
    // Every row is as wide as the longest, so that six cats' names show whole.
    int rowWidth = fontMetrics().averageCharWidth() * 56;
    for (const auto& row : result.rows)
        rowWidth = std::max(rowWidth, fontMetrics().horizontalAdvance(fromWindows1252(row)) +
                                          fontMetrics().averageCharWidth() * 3);
    for (int row = 0; row < finderMatchLimit; ++row) {
        auto* radio = new QRadioButton(this);
        radio->setObjectName(QStringLiteral("match%1RadioButton").arg(row + 1));
        choices->addButton(radio, row);
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QStringLiteral("match%1Edit").arg(row + 1));
        edit->setReadOnly(true);
        edit->setFocusPolicy(Qt::NoFocus);
        edit->setMinimumWidth(rowWidth);
        edit->installEventFilter(this);
        if (row < shown) {
            edit->setText(fromWindows1252(result.rows[static_cast<std::size_t>(row)]));
            edit->setCursorPosition(0);
        }
        radio->setVisible(row < shown);
        edit->setVisible(row < shown);
        // The "No ... found" row is not a client.
        radio->setEnabled(row < matchCount_);
        rows->addWidget(radio, row, 0);
        rows->addWidget(edit, row, 1);
        radioButtons_[static_cast<std::size_t>(row)] = radio;
        rowEdits_[static_cast<std::size_t>(row)] = edit;
    }
    if (matchCount_ > 0) {
        radioButtons_[0]->setChecked(true);
        radioButtons_[0]->setFocus();
    }

    // Static 125.
    auto* prompt = new QLabel(
        matchCount_ > 0 ? QStringLiteral("Choose the client and press OK.") : QString(), this);
    prompt->setObjectName(QStringLiteral("promptLabel"));

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addWidget(prompt);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

std::optional<int> TDlg2::chosenMatch() const
{
    for (int row = 0; row < matchCount_; ++row) {
        if (radioButtons_[static_cast<std::size_t>(row)]->isChecked())
            return row;
    }
    return std::nullopt;
}

bool TDlg2::eventFilter(QObject* watched, QEvent* event)
{
    // A click on a row's text chooses the row; a double click chooses it and closes.
    const bool click = event->type() == QEvent::MouseButtonPress;
    const bool doubleClick = event->type() == QEvent::MouseButtonDblClick;
    if (click || doubleClick) {
        for (int row = 0; row < matchCount_; ++row) {
            if (watched != rowEdits_[static_cast<std::size_t>(row)])
                continue;
            radioButtons_[static_cast<std::size_t>(row)]->setChecked(true);
            radioButtons_[static_cast<std::size_t>(row)]->setFocus();
            if (doubleClick)
                accept();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace purrlodge
