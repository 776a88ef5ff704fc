#include "HouseRules.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A small tree of sources.
class SmallHouse : public testing::Test
{
protected:
    void write(const QString &name, const QString &text)
    {
        const QString path = root_.filePath(name);
        QDir().mkpath(path.section(u'/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
    SourceTree tree() const { return SourceTree(root_.path()); }

private:
    QTemporaryDir root_;
};

QString linesOfCode(int count)
{
    return QStringLiteral("    step();\n").repeated(count);
}

} // namespace

TEST_F(SmallHouse, thatKeepsTheRulesIsTold)
{
    write("platform/foundation/room/Contract.h", "LM_FOUNDATION void contract();\n");
    write("platform/foundation/room/linux/Inner.h", "void inner();\n");
    write("platform/foundation/room/linux/Inner.cpp", "#include \"platform/foundation/room/linux/Inner.h\"\n");
    write("KTX classes/KTXNames.h", "#include \"platform/foundation/room/Contract.h\"\n");
    write("pane/Pane.cpp", "#include \"KTXNames.h\"\n#include <vector>\n\nvoid f()\n{\n" + linesOfCode(40) + "}\n");
    EXPECT_THAT(includesAgainstTheLayers(tree()), IsEmpty());
    EXPECT_THAT(includesOfOthersInternals(tree()), IsEmpty());
    EXPECT_THAT(circlesBetweenRooms(tree()), IsEmpty());
    EXPECT_THAT(headersThatExportNothing(tree()), IsEmpty());
    EXPECT_THAT(filesThatAreTooLong(tree()), IsEmpty());
    EXPECT_THAT(functionsThatAreTooLong(tree()), IsEmpty());
}

TEST_F(SmallHouse, anIncludeAgainstTheLayersIsTold)
{
    write("pane/Pane.h", "");
    write("platform/appkit/View.h", "LM_APPKIT void view();\n");
    write("host/Host.cpp", "\n#include \"pane/Pane.h\"\n");
    write("agent/life/Agent.cpp", "#include \"platform/appkit/View.h\"\n");
    write("platform/appkit/View.cpp", "#include \"tests/support/Wait.h\"\n");
    write("tests/support/Wait.h", "");
    EXPECT_THAT(includesAgainstTheLayers(tree()),
        ElementsAre(Breach{"agent/life/Agent.cpp", 1, "agent does not include platform/appkit/View.h"},
            Breach{"host/Host.cpp", 2, "host does not include pane/Pane.h"},
            Breach{"platform/appkit/View.cpp", 1, "platform/appkit does not include tests/support/Wait.h"}));
}

TEST_F(SmallHouse, anIncludeOfTheSharedClassesByTheirBareNameIsSeen)
{
    write("KTX classes/KTXNames.h", "");
    write("host/Host.cpp", "#include \"KTXNames.h\"\n");
    EXPECT_THAT(includesAgainstTheLayers(tree()),
        ElementsAre(Breach{"host/Host.cpp", 1, "host does not include KTX classes/KTXNames.h"}));
}

TEST_F(SmallHouse, anIncludeOfAnotherRoomsInternalsIsTold)
{
    for (const char *folder : {"linux", "x11", "internal"})
        write(QStringLiteral("platform/foundation/room/%1/Inner.h").arg(QLatin1StringView(folder)), "");
    write("platform/foundation/next/Next.cpp",
        "#include \"platform/foundation/room/internal/Inner.h\"\n#include \"platform/foundation/room/linux/Inner.h\"\n"
        "#include \"platform/foundation/room/x11/Inner.h\"\n");
    write("tests/unit/InnerTest.cpp", "#include \"platform/foundation/room/linux/Inner.h\"\n");
    const QString rule = "platform/foundation/room keeps to itself platform/foundation/room/%1/Inner.h";
    const QString file = "platform/foundation/next/Next.cpp";
    EXPECT_THAT(includesOfOthersInternals(tree()),
        ElementsAre(Breach{file, 1, rule.arg("internal")}, Breach{file, 2, rule.arg("linux")},
            Breach{file, 3, rule.arg("x11")}));
}

TEST_F(SmallHouse, aRoomHasNothingOfWhatItsLibraryKeepsToItself)
{
    write("platform/appkit/linux/Inner.h", "");
    write("platform/appkit/Top.cpp", "#include \"platform/appkit/linux/Inner.h\"\n");
    write("platform/appkit/room/Room.cpp", "#include \"platform/appkit/linux/Inner.h\"\n");
    EXPECT_THAT(includesOfOthersInternals(tree()),
        ElementsAre(Breach{
            "platform/appkit/room/Room.cpp", 1, "platform/appkit keeps to itself platform/appkit/linux/Inner.h"}));
}

TEST_F(SmallHouse, theUpdatersCoreIsALayerOfItsOwn)
{
    write("updater/core/Core.h", "");
    write("updater/Window.h", "");
    write("updater/Window.cpp", "#include \"updater/core/Core.h\"\n#include \"updater/Window.h\"\n");
    write("tools/tool.cpp", "#include \"updater/core/Core.h\"\n#include \"updater/Window.h\"\n");
    write("updater/core/Core.cpp", "#include \"updater/Window.h\"\n");
    EXPECT_THAT(includesAgainstTheLayers(tree()),
        ElementsAre(Breach{"tools/tool.cpp", 2, "tools does not include updater/Window.h"},
            Breach{"updater/core/Core.cpp", 1, "updater/core does not include updater/Window.h"}));
}

TEST_F(SmallHouse, aLibraryOutOfItsPlaceIsTold)
{
    write("updater/core/Core.cpp", "#include <sodium.h>\n#include <archive.h>\n");
    write("updater/Window.cpp", "#include <archive_entry.h>\n");
    write("pane/Pane.cpp", "#include <vector>\n#include <sodium.h>\n");
    EXPECT_THAT(librariesOutOfTheirPlace(tree()),
        ElementsAre(Breach{"pane/Pane.cpp", 2, "sodium.h is for updater/core alone"},
            Breach{"updater/Window.cpp", 1, "archive_entry.h is for updater/core alone"}));
}

TEST_F(SmallHouse, aCircleBetweenRoomsIsTold)
{
    write("platform/foundation/a/A.h", "#include \"platform/foundation/b/B.h\"\n");
    write("platform/foundation/b/B.h", "#include \"platform/foundation/c/C.h\"\n");
    write("platform/foundation/c/C.h", "\n#include \"platform/foundation/a/A.h\"\n");
    EXPECT_THAT(circlesBetweenRooms(tree()),
        ElementsAre(
            Breach{"platform/foundation/c/C.h", 2, "platform/foundation/a includes platform/foundation/c already"}));
}

TEST_F(SmallHouse, theAgentHasRoomsToo)
{
    write("agent/a/A.h", "#include \"agent/b/B.h\"\n");
    write("agent/b/B.h", "#include \"agent/a/A.h\"\n");
    write("agent/c/C.h", "#include \"agent/a/x11/Inner.h\"\n");
    write("agent/a/x11/Inner.h", "");
    EXPECT_THAT(circlesBetweenRooms(tree()), ElementsAre(Breach{"agent/b/B.h", 1, "agent/a includes agent/b already"}));
    EXPECT_THAT(includesOfOthersInternals(tree()),
        ElementsAre(Breach{"agent/c/C.h", 1, "agent/a keeps to itself agent/a/x11/Inner.h"}));
}

TEST_F(SmallHouse, aHeaderOnTopThatIsNoContractIsTold)
{
    write("platform/foundation/room/Inner.h", "void inner();\n");
    write("platform/foundation/room/Room.cpp", "#include \"platform/foundation/room/Inner.h\"\n");
    write("platform/foundation/room/Plain.h", "struct Plain { };\n");
    write("pane/Pane.cpp", "#include \"platform/foundation/room/Plain.h\"\n");
    EXPECT_THAT(headersThatExportNothing(tree()),
        ElementsAre(Breach{
            "platform/foundation/room/Inner.h", 1, "is no contract: exports nothing, and nobody outside includes it"}));
}

TEST_F(SmallHouse, aFileThatIsTooLongIsTold)
{
    write("pane/Long.cpp", QStringLiteral("//\n").repeated(301));
    write("pane/JustLong.cpp", QStringLiteral("//\n").repeated(300));
    write("pane/Long.h", QStringLiteral("//\n").repeated(151));
    EXPECT_THAT(filesThatAreTooLong(tree()),
        ElementsAre(Breach{"pane/Long.cpp", 301, "is longer than 300 lines"},
            Breach{"pane/Long.h", 151, "is longer than 150 lines"}));
}

TEST_F(SmallHouse, aFunctionThatIsTooLongIsTold)
{
    write("pane/Long.cpp", "void f(int a,\n    int b)\n{\n" + linesOfCode(41) + "}\n");
    write("pane/Member.h", "class C\n{\n    C() : a(1)\n    {\n" + linesOfCode(41) + "    }\n};\n");
    EXPECT_THAT(functionsThatAreTooLong(tree()),
        ElementsAre(
            Breach{"pane/Long.cpp", 3, "function of 41 lines"}, Breach{"pane/Member.h", 4, "function of 41 lines"}));
}

TEST_F(SmallHouse, aLongTableIsNoLongFunction)
{
    const QString rows = QStringLiteral("        {1, 2},\n").repeated(100);
    write("pane/Table.cpp", "List table()\n{\n    static const List rows{\n" + rows + "    };\n    return rows;\n}\n");
    EXPECT_THAT(functionsThatAreTooLong(tree()), IsEmpty());
}
