#include "gui/app/TDlgAbout.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

#include "gui/DialogButtons.h"
#include "gui/app/ProgramVersion.h"
#include "gui/app/TDlgPictureNote.h"

namespace purrlodge {

namespace {

// The cat with the collar and tag: the house's own cat.
constexpr int aboutPicture = 15;
constexpr int aboutPictureSize = 96;

QLabel* newLabel(const QString& objectName, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

TDlgAbout::TDlgAbout(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(QStringLiteral("About Purrlodge"));

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("aboutPictureLabel"));
    picture->setPixmap(notePicture(aboutPicture)
                           .scaled(aboutPictureSize, aboutPictureSize, Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation));

    QLabel* name = newLabel(QStringLiteral("programNameLabel"), QStringLiteral("Purrlodge"), this);
    QFont nameFont = name->font();
    nameFont.setPointSizeF(nameFont.pointSizeF() * 1.8);
    nameFont.setBold(true);
    name->setFont(nameFont);

    QLabel* version =
        newLabel(QStringLiteral("versionLabel"),
                 QStringLiteral("Version %1").arg(QLatin1String(programVersion)), this);
    QLabel* purpose =
        newLabel(QStringLiteral("purposeLabel"),
                 QStringLiteral("Runs a cattery: your clients and their cats, bookings, "
                                "accounts and printouts, all kept safely on this computer."),
                 this);
    purpose->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    QLabel* licence = newLabel(QStringLiteral("licenceLabel"),
                               QStringLiteral("Copyright \u00A9 2026. All rights reserved."), this);

    auto* content = new QWidget(this);
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->addWidget(picture, 0, 0, 4, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(version, 1, 1);
    grid->addWidget(purpose, 2, 1);
    grid->addWidget(licence, 3, 1);

    layOutAboveButtons(this, content, newButtonBox(this, QDialogButtonBox::Ok));
}

} // namespace purrlodge
