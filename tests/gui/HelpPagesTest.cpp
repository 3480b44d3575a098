#include <QLabel>

#include "app/PictureNotes.h"
#include "gui/ShellFixture.h"
#include "gui/app/ClockFace.h"
#include "gui/app/ProgramVersion.h"
#include "gui/app/TDlgPictureNote.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QString labelText(QWidget* dialog, const QString& name)
{
    return child<QLabel>(dialog, name)->text();
}

} // namespace

class HelpPagesTest : public QObject {
    Q_OBJECT

private slots:
    void pictureNoteIndicatorAndMenuItemFollowThePictureAndTheSetting()
    {
        ShellFixture shell;
        ShellState& state = shell.session.shell;
        state.pictureFlags = pictureNoteFlags();
        state.pictureTable = picturePlacements;
        // Every picture with a note has its picture compiled in, and only those.
        for (int picture = 0; picture < pictureCount; ++picture)
            QCOMPARE(!notePicture(picture).isNull(),
                     state.pictureFlags[static_cast<std::size_t>(picture)]);

        QAction* seeNotes = shell.window.actionsFor(command::seePictureNotes).first();
        QAction* indicatorItem = shell.window.actionsFor(command::showPicNoteIndicator).first();
        for (const bool indicatorOn : {false, true}) {
            if (state.pictureNoteIndicator != indicatorOn)
                indicatorItem->trigger();
            QCOMPARE(shell.profile.read("musnotes"), indicatorOn ? "Y" : "N");
            for (const auto& [picture, hasNote] : {std::pair{3, true}, std::pair{2, false}}) {
                state.pictureIndex = picture;
                shell.openAndClose(u"helpMenu"_s);
                QCOMPARE(seeNotes->isEnabled(), hasNote);
                QCOMPARE(shell.window.clockFace()->showsPictureNoteIndicator(),
                         hasNote && indicatorOn);
            }
        }

        state.pictureIndex = 3;
        shell.openAndClose(u"helpMenu"_s);
        ModalAnswers answers({[](QWidget* dialog) {
            QVERIFY(!child<QLabel>(dialog, u"pictureLabel"_s)->pixmap().isNull());
            QVERIFY(!labelText(dialog, u"noteLabel"_s).isEmpty());
            press(QDialogButtonBox::Close)(dialog);
        }});
        seeNotes->trigger();
        QCOMPARE(answers.seen(), u"Picture Note"_s);
    }

    void everyHelpItemOpensItsPageAndAboutShowsTheVersion()
    {
        ShellFixture shell;
        // Help | Help on: | Emergency! names the data folder in use.
        const QString dataFolder = QString::fromStdString(shell.folder());
        const auto emergency = [&](QWidget* dialog) {
            QVERIFY(labelText(dialog, u"helpTextLabel"_s).contains(dataFolder));
            press(QDialogButtonBox::Close)(dialog);
        };
        const auto aboutBox = [](QWidget* dialog) {
            QVERIFY(labelText(dialog, u"versionLabel"_s).contains(QLatin1String(programVersion)));
            QVERIFY(!QLatin1String(programVersion).isEmpty());
            press(QDialogButtonBox::Ok)(dialog);
        };
        const auto close = press(QDialogButtonBox::Close);
        const std::vector<std::pair<int, ModalAnswers::Answer>> items{
            {command::setupHelp, close},
            {command::backupAdvice, close},
            {command::colourPrintingHelp, close},
            {command::deletingAClientHelp, close},
            {command::changeDataDirectoryHelp, close},
            {command::emergencyHelp, emergency},
            {command::about, aboutBox}};
        QStringList titles;
        for (const auto& [commandId, answer] : items) {
            ModalAnswers answers({answer});
            shell.trigger(commandId);
            titles.append(answers.seen());
        }
        QCOMPARE(titles.join(u", "_s),
                 u"Setup Help, Advice on Backingup, Colour Printing, Deleting a Client, "
                 "How to Change Data Directory, Emergency!, About Purrlodge"_s);
    }
};

QTEST_MAIN(HelpPagesTest)
#include "HelpPagesTest.moc"
