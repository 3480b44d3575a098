#include "gui/housekeeping/TDlg81.h"

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include "gui/DialogButtons.h"
#include "gui/RadioButtons.h"

namespace purrlodge {

namespace {

// A sample label as it comes out in the file, framed like a sticky label.
QLabel* newSample(const QString& objectName, const QString& text, QWidget* parent)
{
    auto* sample = new QLabel(text, parent);
    sample->setObjectName(objectName);
    sample->setTextFormat(Qt::PlainText);
    sample->setFrameShape(QFrame::Box);
    sample->setMargin(8);
    sample->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    sample->setMinimumWidth(sample->fontMetrics().averageCharWidth() * 24);
    return sample;
}

} // namespace

TDlg81::TDlg81(LabelStyle current, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("addressFormatDialog"));
    setWindowTitle(QStringLiteral("Address Format"));

    auto* content = new QWidget(this);
    QLabel* plain =
        newSample(QStringLiteral("plainSampleLabel"),
                  QStringLiteral("Mrs Ann Smith\n2 High Street\nUpton\nUP1 2CD"), content);
    QLabel* cats =
        newSample(QStringLiteral("catsSampleLabel"),
                  QStringLiteral("Tom, Kit\nc\\o Mrs Ann Smith\n2 High Street\nUpton\nUP1 "
                                 "2CD"),
                  content);

    auto* group = new QButtonGroup(this);
    plainButton_ = newRadioButton(QStringLiteral("This st&yle"), QStringLiteral("plainStyleButton"),
                                  group, content, 102);
    catsButton_ = newRadioButton(QStringLiteral("This s&tyle"), QStringLiteral("catsStyleButton"),
                                 group, content, 105);
    (current == LabelStyle::Plain ? plainButton_ : catsButton_)->setChecked(true);
    keepOneTabStop(group);

    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(plain, 0, 0);
    grid->addWidget(cats, 0, 1);
    grid->addWidget(plainButton_, 1, 0, Qt::AlignHCenter);
    grid->addWidget(catsButton_, 1, 1, Qt::AlignHCenter);

    layOutAboveButtons(this, content,
                       newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
}

LabelStyle TDlg81::style() const
{
    return plainButton_->isChecked() ? LabelStyle::Plain : LabelStyle::CatCareOf;
}

} // namespace purrlodge
