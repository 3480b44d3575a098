#include "gui/app/FontSubstitutions.h"

#include <QFont>
#include <QStringList>

namespace purrlodge {

void installFontSubstitutions()
{
    QFont::insertSubstitution(QStringLiteral("Times New Roman"),
                              QStringLiteral("Liberation Serif"));
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Arial Narrow"),
                              QStringLiteral("Liberation Sans Narrow"));
    // The printing code asks for the heaviest weight along with the face.
    QFont::insertSubstitution(QStringLiteral("Arial Black"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Digital SF"), QStringLiteral("DSEG7 Classic"));
    // The blackletter face is registered under its file's name by some versions.
    QFont::insertSubstitutions(
        QStringLiteral("CloisterBlack BT"),
        {QStringLiteral("Blankenburg"), QStringLiteral("Blankenburg_UNZ1A")});
}

} // namespace purrlodge
