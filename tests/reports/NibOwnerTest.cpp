#include "CapturedLog.h"
#include "TestBundle.h"

#include "crashreporter/QBNibOwner.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QFile>
#include <QLabel>
#include <QPointer>
#include <gtest/gtest.h>

class SampleOwner : public QBNibOwner
{
    Q_OBJECT

public:
    InterfaceOwner interfaceOwner() override
    {
        InterfaceOwner owner = QBNibOwner::interfaceOwner();
        owner.outlets = {outletEntry("label", label)};
        return owner;
    }
    void awakeFromNib() override { textWhenAwoken = label ? label.get()->text() : QString(); }

    Outlet<QLabel> label;
    QString textWhenAwoken;
};

class OtherOwner : public SampleOwner
{
    Q_OBJECT

public:
    QString nibFilename() const override { return QStringLiteral("SampleOwner"); }
};

class LostOwner : public OtherOwner
{
    Q_OBJECT

public:
    QString nibFilename() const override { return QStringLiteral("Elsewhere"); }
};

namespace {

class NibOwner : public testing::Test
{
protected:
    NibOwner()
    {
        pane.writeInfo({{"CFBundleIdentifier", "com.quorvane.Lumaroo"}});
        NSBundle::bundleWithPath(pane.path())->setLoaded();
    }
    static QByteArray fileSaying(const QByteArray &text)
    {
        return R"(<ui version="4.0"><class>SampleOwner</class><widget class="QDialog" name="window">)"
               R"(<widget class="QLabel" name="label"><property name="text"><string>)"
            + text + "</string></property></widget></widget></ui>";
    }

    const TestBundle pane{"Lumaroo.prefPane"};
    const CapturedLog log{};
};

} // namespace

TEST_F(NibOwner, loadsTheFileOfItsClassFromThePaneAndNotFromTheApplication)
{
    const QString ofTheApplication = NSBundle::mainBundle()->resourcePath();
    QDir().mkpath(ofTheApplication);
    QFile file(ofTheApplication + "/SampleOwner.ui");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(fileSaying("the application's"));
    file.close();
    pane.writeFile("Contents/Resources/SampleOwner.ui", fileSaying("the pane's"));
    SampleOwner owner;
    EXPECT_TRUE(owner.init());
    file.remove();
    EXPECT_EQ(owner.textWhenAwoken, "the pane's");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(NibOwner, takesItsWindowAlongWhenItGoes)
{
    pane.writeFile("Contents/Resources/SampleOwner.ui", fileSaying("text"));
    auto owner = std::make_unique<SampleOwner>();
    ASSERT_TRUE(owner->init());
    const QPointer<QWidget> window = owner->label.get()->window();
    ASSERT_TRUE(window);
    owner.reset();
    EXPECT_FALSE(window);
}

TEST_F(NibOwner, aSubclassMayNameAnotherFile)
{
    pane.writeFile("Contents/Resources/SampleOwner.ui", fileSaying("shared"));
    OtherOwner owner;
    EXPECT_TRUE(owner.init());
    EXPECT_EQ(owner.textWhenAwoken, "shared");
}

TEST_F(NibOwner, withoutItsFileItIsOfNoUseAndOneLineNamesItTwice)
{
    SampleOwner owner;
    EXPECT_FALSE(owner.init());
    EXPECT_EQ(log.lines(), QStringList("SampleOwner: Couldn't find NIB file \"SampleOwner.nib\"."));
    EXPECT_EQ(owner.textWhenAwoken, QString());
}

TEST_F(NibOwner, aDamagedFileIsOneLineWithTheCause)
{
    pane.writeFile("Contents/Resources/SampleOwner.ui", "<ui version=\"4.0\"><widget");
    SampleOwner owner;
    EXPECT_FALSE(owner.init());
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith("SampleOwner: Couldn't find NIB file \"SampleOwner.nib\". ("));
    EXPECT_TRUE(log.lines()[0].contains("SampleOwner.ui: "));
}

TEST_F(NibOwner, theLineNamesTheClassAndTheFileItAskedFor)
{
    LostOwner owner;
    EXPECT_FALSE(owner.init());
    EXPECT_EQ(log.lines(), QStringList("LostOwner: Couldn't find NIB file \"Elsewhere.nib\"."));
}

#include "NibOwnerTest.moc"
