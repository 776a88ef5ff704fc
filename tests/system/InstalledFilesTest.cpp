// What `cmake --install` puts where, as desktops, software centres and the settings look for it; and that its list of
// files is complete.

#include <QDir>
#include <QDirIterator>
#include <gmock/gmock.h>

namespace {

void run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    ASSERT_TRUE(process.waitForFinished(120000)) << qPrintable(process.errorString());
    ASSERT_EQ(process.exitCode(), 0) << process.readAll().constData();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

class InstalledFiles : public testing::Test
{
protected:
    void SetUp() override { run("cmake", {"--install", build, "--prefix", prefix}); }

    QStringList files() const
    {
        QStringList found;
        QDirIterator iterator(prefix, QDir::Files | QDir::System | QDir::Hidden, QDirIterator::Subdirectories);
        while (iterator.hasNext())
            found += iterator.next().mid(prefix.size() + 1);
        return found;
    }

    QString desktopEntry(const QString &key) const
    {
        const QSettings entry(prefix + "/share/applications/" + desktopId + ".desktop", QSettings::IniFormat);
        return entry.value("Desktop Entry/" + key).toString();
    }

    QTemporaryDir folder;
    const QString prefix = folder.path() + "/prefix";
    const QString build = qEnvironmentVariable("LUMAROO_BUILD");
    const QString desktopId = "com.quorvane.LumarooSettings";
};

} // namespace

TEST_F(InstalledFiles, theMenuEntryStartsAProgramThatIsInstalled)
{
    const QFileInfo program(prefix + "/bin/" + desktopEntry("Exec"));
    EXPECT_TRUE(program.isExecutable());
    EXPECT_TRUE(program.canonicalFilePath().startsWith(prefix + "/lib/lumaroo/Settings.app/"));
}

TEST_F(InstalledFiles, theMenuEntrysIconIsThereInEachSize)
{
    const QDir icons(prefix + "/share/icons/hicolor");
    const QString name = desktopEntry("Icon");
    EXPECT_TRUE(icons.exists("scalable/apps/" + name + ".svg"));
    const QStringList sizes = icons.entryList({"*x*"}, QDir::Dirs);
    EXPECT_GE(sizes.size(), 7);
    for (const QString &size : sizes) {
        const int side = size.section('x', 0, 0).toInt();
        EXPECT_EQ(QImage(icons.filePath(size + "/apps/" + name + ".png")).size(), QSize(side, side));
    }
}

TEST_F(InstalledFiles, theDescriptionForSoftwareCentresLeadsToTheMenuEntry)
{
    const QByteArray description = contentOf(prefix + "/share/metainfo/" + desktopId + ".metainfo.xml");
    EXPECT_TRUE(
        description.contains("<launchable type=\"desktop-id\">" + desktopId.toUtf8() + ".desktop</launchable>"));
}

TEST_F(InstalledFiles, thePaneHasItsCodeAndEveryResource)
{
    const QString contents = "lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/";
    EXPECT_THAT(files(),
        testing::IsSupersetOf(
            {contents + "Info.plist", contents + "Linux/Lumaroo", contents + "Resources/LumarooPref.ui",
                contents + "Resources/Lumaroo.icns", contents + "Resources/Credits.rtfd/TXT.rtf",
                contents + "Resources/Credits.rtfd/Lumaroo.png", contents + "Resources/de.lproj/InfoPlist.qm",
                contents + "Resources/de.lproj/LumarooPref.qm", contents + "Resources/de.lproj/Localizable.qm",
                contents + "Resources/Pages/AtAGlance.html", contents + "Resources/de.lproj/Pages/AtAGlance.html"}));
}

TEST_F(InstalledFiles, thePaneHasTheAgentAndTheLibraryItRunsWith)
{
    const QString contents = "lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/";
    const QString agent = contents + "Resources/LumarooAgent.app/Contents/";
    EXPECT_THAT(files(),
        testing::IsSupersetOf({agent + "Info.plist", agent + "Linux/LumarooAgent", agent + "Resources/screenshot",
            contents + "Resources/launcher", contents + "Resources/installer",
            contents + "Frameworks/liblumaroo-foundation.so.1",
            contents + "Frameworks/liblumaroo-overlay-pictures.so.100",
            QString("share/dbus-1/interfaces/com.quorvane.LumarooAgent.xml")}));
}

TEST_F(InstalledFiles, thePaneHasTheTutorialBesideTheAgent)
{
    const QString tutorial =
        "lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/Resources/LumarooTutorial.app/Contents/";
    EXPECT_THAT(files(),
        testing::IsSupersetOf({tutorial + "Info.plist", tutorial + "Linux/LumarooTutorial",
            tutorial + "Resources/de.lproj/Tutorial.qm", tutorial + "Resources/de.lproj/Localizable.qm"}));
}

TEST_F(InstalledFiles, whatAsksForWebPagesAndShowsHelpLiesBesideTheLibraryThatLoadsIt)
{
    EXPECT_THAT(files(),
        testing::IsSupersetOf({QString("lib/lumaroo/liblumaroo-appkit.so.1"),
            QString("lib/lumaroo/liblumaroo-network.so.1"), QString("lib/lumaroo/liblumaroo-help.so.1")}));
}

TEST_F(InstalledFiles, thePaneHasItsHelpBookInEachLanguage)
{
    const QString book = "lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/Resources/Lumaroo.help/";
    EXPECT_THAT(files(), testing::IsSupersetOf({book + "en.lproj/Help.qch", book + "de.lproj/Help.qch"}));
}

TEST_F(InstalledFiles, theUpdaterLiesInThePanesBundle)
{
    const QString libraries = "lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/Frameworks/";
    EXPECT_THAT(files().filter(libraries + "liblumaroo-updater"),
        testing::IsSupersetOf({libraries + "liblumaroo-updater.so.1", libraries + "liblumaroo-updater.so.1.0",
            libraries + "liblumaroo-updater-windows.so.100"}));
    EXPECT_THAT(files().filter(QRegularExpression("liblumaroo-.*\\.so$")), testing::IsEmpty()) << "for who links only";
}

TEST_F(InstalledFiles, theAgentAndTheTutorialRunFromWhereverThePrefixIsMovedTo)
{
    const QString moved = folder.path() + "/moved";
    ASSERT_TRUE(QDir().rename(prefix, moved));
    // Without the library beside the bundles: the agent has its own.
    for (const QString &library : QDir(moved + "/lib/lumaroo").entryList({"liblumaroo-*"}))
        ASSERT_TRUE(QFile::remove(moved + "/lib/lumaroo/" + library));
    const QString resources = moved + "/lib/lumaroo/PreferencePanes/Lumaroo.prefPane/Contents/Resources/";
    run(resources + "LumarooAgent.app/Contents/Linux/LumarooAgent", {"--version"});
    run(resources + "LumarooTutorial.app/Contents/Linux/LumarooTutorial", {"--version"});
}

TEST_F(InstalledFiles, manualPagesCompletionAndTheReadmeAreWherePeopleLook)
{
    QStringList wanted{"share/doc/lumaroo/README.md", "share/doc/lumaroo/changelog.gz", "share/doc/lumaroo/copyright"};
    for (const char *program : {"lumaroo-settings", "lumaroo-defaults", "LumarooAgent"}) {
        wanted += QString("share/bash-completion/completions/%1").arg(program);
        wanted += QString("share/man/man1/%1.1.gz").arg(program);
        wanted += QString("share/man/de/man1/%1.1.gz").arg(program);
    }
    EXPECT_THAT(files(), testing::IsSupersetOf(wanted));
}

TEST_F(InstalledFiles, everyPictureOfTheReadmeIsInstalledWithIt)
{
    const QDir documents(prefix + "/share/doc/lumaroo");
    static const QRegularExpression picture("!\\[[^]]*\\]\\(([^)]+)\\)");
    auto match = picture.globalMatch(QString::fromUtf8(contentOf(documents.filePath("README.md"))));
    ASSERT_TRUE(match.hasNext());
    while (match.hasNext()) {
        const QString name = match.next().captured(1);
        EXPECT_TRUE(documents.exists(name)) << qPrintable(name);
    }
}

TEST_F(InstalledFiles, makingAPackageLeavesTheManifestAsItIs)
{
    EXPECT_TRUE(contentOf(build + "/CPackConfig.cmake").contains(";Unspecified;/\")"));
    const QByteArray manifest = contentOf(build + "/install_manifest.txt");
    const QStringList installed = files();
    run("cmake", {"--install", build, "--prefix", folder.path() + "/package", "--component", "Unspecified"});
    EXPECT_EQ(contentOf(build + "/install_manifest.txt"), manifest);
    ASSERT_TRUE(QDir(prefix).removeRecursively());
    ASSERT_TRUE(QDir().rename(folder.path() + "/package", prefix));
    EXPECT_EQ(files(), installed) << "all of it is in the package";
}

TEST_F(InstalledFiles, removingWhatTheManifestListsLeavesNoFile)
{
    const QList<QByteArray> listed = contentOf(build + "/install_manifest.txt").split('\n');
    for (const QByteArray &path : listed) {
        ASSERT_TRUE(path.isEmpty() || path.startsWith(prefix.toUtf8())) << path.constData();
        QFile::remove(QString::fromUtf8(path));
    }
    EXPECT_TRUE(files().isEmpty()) << qPrintable(files().join('\n'));
}
