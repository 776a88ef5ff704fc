// What stands in windows' properties, in whatever form.

#include "agent/windows/x11/PropertyDecoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

constexpr xcb_atom_t utf8Text = 300, compoundText = 301;
constexpr TextTypes textTypes{utf8Text, compoundText};

QByteArray bytesOf(const QList<quint32> &values)
{
    return {reinterpret_cast<const char *>(values.constData()), values.size() * qsizetype(sizeof(quint32))};
}

QString title(const QByteArray &bytes, xcb_atom_t type = utf8Text)
{
    return titleOf({type, 8, bytes}, textTypes);
}

} // namespace

TEST(PropertyDecoding, takesNumbersOfTheirTypeAlone)
{
    const QByteArray bytes = bytesOf({1, 2});
    EXPECT_THAT(*numbersOf({XCB_ATOM_CARDINAL, 32, bytes}, XCB_ATOM_CARDINAL), ElementsAre(1U, 2U));
    EXPECT_THAT(*numbersOf({XCB_ATOM_CARDINAL, 32, bytes.chopped(1)}, XCB_ATOM_CARDINAL), ElementsAre(1U));
    EXPECT_TRUE(numbersOf({XCB_ATOM_CARDINAL, 32, {}}, XCB_ATOM_CARDINAL)->isEmpty());
    EXPECT_FALSE(numbersOf({XCB_ATOM_CARDINAL, 8, bytes}, XCB_ATOM_CARDINAL));
    EXPECT_FALSE(numbersOf({XCB_ATOM_WINDOW, 32, bytes}, XCB_ATOM_CARDINAL));
    EXPECT_FALSE(numbersOf({}, XCB_ATOM_NONE));
    EXPECT_FALSE(numberOf({XCB_ATOM_CARDINAL, 32, {}}, XCB_ATOM_CARDINAL));
    EXPECT_EQ(numberOf({XCB_ATOM_CARDINAL, 32, bytes}, XCB_ATOM_CARDINAL), 1U);
}

TEST(PropertyDecoding, takesFourMarginsWithinBounds)
{
    const auto margins = [](const QList<quint32> &sides) {
        const QByteArray bytes = bytesOf(sides);
        return marginsOf({XCB_ATOM_CARDINAL, 32, bytes});
    };
    EXPECT_EQ(margins({1, 2, 3, 4}), QMargins(1, 3, 2, 4));
    EXPECT_EQ(margins({0, 0, 0, widestMargin}), QMargins(0, 0, 0, int(widestMargin)));
    EXPECT_FALSE(margins({0, 0, 0, widestMargin + 1}));
    EXPECT_FALSE(margins({0, 0, 0}));
    EXPECT_FALSE(margins({0, 0, 0, 0, 0}));
}

TEST(PropertyDecoding, readsTitlesInWhicheverEncoding)
{
    EXPECT_EQ(title("Stra\xc3\x9f"
                    "e"),
        QString::fromUtf8("Stra\xc3\x9f"
                          "e"));
    EXPECT_EQ(title("Stra\xdf"
                    "e",
                  XCB_ATOM_STRING),
        QString::fromUtf8("Stra\xc3\x9f"
                          "e"));
    EXPECT_EQ(title("Stra\xc3\x9f"
                    "e",
                  XCB_ATOM_STRING),
        QString::fromUtf8("Stra\xc3\x9f"
                          "e"));
    EXPECT_EQ(title("", XCB_ATOM_NONE), "");
    EXPECT_EQ(titleOf({utf8Text, 32, "text"}, textTypes), "");
    EXPECT_EQ(title(QByteArray("one\0two", 7)), "one");
    EXPECT_EQ(title("  a\r\nb\x7f "), "a  b");
}

TEST(PropertyDecoding, readsTitlesThatChangeTheirEncoding)
{
    const auto compound = [](const QByteArray &bytes) { return title(bytes, compoundText); };
    EXPECT_EQ(compound("plain"), "plain");
    EXPECT_EQ(compound("Caf\xe9"), u"Café");
    EXPECT_EQ(compound("Caf\xc3\xa9"), u"Café") << "that does not say so";
    EXPECT_EQ(compound("Caf\x1b-A\xe9 \x1b(Bend"), u"Café end");
    EXPECT_EQ(compound("\x1b%G\xe2\x82\xac\x1b%@ and \xe9"), u"€ and é");
    EXPECT_EQ(compound("\x1b%G\xe2\x82\xac"), u"€") << "not ended";
    EXPECT_EQ(compound("a\x9b\x31]b\x9b]c\xe9"), u"abcé");
    EXPECT_EQ(compound("\x1b%G\xe2\x9b\x84\x1b%@"), u"⛄") << "a byte that else begins a direction";
}

TEST(PropertyDecoding, readsNoTitleWithCharactersThatItCannotTell)
{
    const auto compound = [](const QByteArray &bytes) { return title(bytes, compoundText); };
    EXPECT_EQ(compound("\x1b$(B\x46\x7c\x4b\x5c"), "");
    EXPECT_EQ(compound("known \x1b-B\xe6"), "");
    EXPECT_EQ(compound("\x1b%/1\x80\x8ciso8859-15\x02\xa4"), "");
    EXPECT_EQ(compound("\x1b%G\xe2\x82 \x1b%@"), "") << "broken";
    EXPECT_EQ(compound("cut \x1b%"), "cut");
    EXPECT_EQ(compound("\x1b%Gcut \xe2\x82"), "cut");
}

TEST(PropertyDecoding, findsTheLeaderOfAGroup)
{
    const auto leader = [](const QList<quint32> &hints, xcb_atom_t type = XCB_ATOM_WM_HINTS) {
        const QByteArray bytes = bytesOf(hints);
        return groupLeaderOf({type, 32, bytes});
    };
    EXPECT_EQ(leader({64, 0, 0, 0, 0, 0, 0, 0, 7}), 7U);
    EXPECT_EQ(leader({64 | 3, 1, 1, 0, 0, 0, 0, 0, 7, 8}), 7U);
    EXPECT_FALSE(leader({3, 1, 1, 0, 0, 0, 0, 0, 7})) << "it does not say so";
    EXPECT_FALSE(leader({64, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(leader({64, 0, 0, 0, 0, 0, 0, 7}));
    EXPECT_FALSE(leader({64, 0, 0, 0, 0, 0, 0, 0, 7}, XCB_ATOM_CARDINAL));
    EXPECT_FALSE(leader({}));
}

TEST(PropertyDecoding, cutsTitlesBetweenCharacters)
{
    EXPECT_EQ(title("ab\xf0\x9f\x98"), "ab") << "whose last byte was not asked for";
    EXPECT_EQ(title("ab\xc3"), "ab");
    EXPECT_EQ(title("\x80\x80\x80\x80"), QString(4, QChar(0xfffd)));
    EXPECT_EQ(title(QByteArray(5000, 'x')).size(), longestTitle);
    const QString emoji = title("x" + QByteArray("\xf0\x9f\x98\x80").repeated(2000));
    EXPECT_EQ(emoji.size(), longestTitle - 1);
    EXPECT_TRUE(emoji.isValidUtf16());
}

TEST(PropertyDecoding, readsClassesOfTwoTexts)
{
    const auto program = [](const QByteArray &bytes) { return programClassOf({XCB_ATOM_STRING, 8, bytes}); };
    EXPECT_EQ(program(QByteArray("term\0Term\0", 10)), (ProgramClass{"term", "Term"}));
    EXPECT_EQ(program(QByteArray("term\0Term", 9)), (ProgramClass{"term", "Term"}));
    EXPECT_EQ(program("term"), (ProgramClass{"term", ""}));
    EXPECT_EQ(program(""), ProgramClass());
    EXPECT_EQ(programClassOf({utf8Text, 8, "term"}), ProgramClass());
}

TEST(PropertyDecoding, findsTheTextSizeAmongThePreferences)
{
    const auto size = [](const QByteArray &bytes) { return dotsPerInchOf({XCB_ATOM_STRING, 8, bytes}); };
    EXPECT_EQ(size("*color: red\nXft.dpi:\t144\nXft.hinting: 1\n"), 144);
    EXPECT_FALSE(size("Xft.dpix: 144"));
    EXPECT_FALSE(size("Xft.dpi: big"));
    EXPECT_FALSE(size("Xft.dpi: -96"));
    EXPECT_FALSE(size(""));
}
