#include "gui/Text1252.h"

#include <QTest>

using namespace purrlodge;

class Text1252Test : public QObject {
    Q_OBJECT

private slots:
    void everyByteSurvivesARoundTrip()
    {
        std::string all;
        for (int byte = 0; byte < 256; ++byte)
            all.push_back(static_cast<char>(byte));
        QCOMPARE(toWindows1252(fromWindows1252(all)), all);
    }

    void highRangeUsesThe1252Characters()
    {
        QCOMPARE(fromWindows1252("\x80\x85\x99\xA3\xE9"), QStringLiteral(u"€…™£é"));
        QCOMPARE(toWindows1252(u"€9.50 £3 — ‘ok’"), std::string("\x80"
                                                                "9.50 \xA3"
                                                                "3 \x97 \x91ok\x92"));
    }

    void charactersOutside1252BecomeOneQuestionMarkEach()
    {
        QCOMPARE(toWindows1252(u"Ω cat 🐈 ok"), std::string("? cat ? ok"));
        // A control character that 1252 spends on a printable one is not a round trip.
        QCOMPARE(toWindows1252(QString(QChar(0x80))), std::string("?"));
    }
};

QTEST_GUILESS_MAIN(Text1252Test)
#include "Text1252Test.moc"
