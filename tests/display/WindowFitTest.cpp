// No text of the pane's window is clipped: in every language, at its usual size and on the smallest screen, from left
// to right and mirrored, at one and at one and a half times the size.

#include "LoadedWindow.h"
#include "StringTables.h"
#include "TextRoom.h"
#include "Wait.h"

#include "platform/appkit/controls/Controls.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QScrollArea>
#include <QTabWidget>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr QSize smallScreenWithinAFrame(640 - 16, 480 - 48);
constexpr const char *scaledVariable = "LUMAROO_TEST_IS_SCALED";

std::string describe(const QWidget *widget)
{
    return (widget->objectName() + ' ' + widget->metaObject()->className()).toStdString();
}

/// The row of a page that needs the most width.
std::string widestRowOf(const QWidget *column)
{
    const auto rows = column->findChildren<QHBoxLayout *>();
    const auto widest = std::max_element(rows.cbegin(), rows.cend(), [](const QLayout *one, const QLayout *other) {
        return one->minimumSize().width() < other->minimumSize().width();
    });
    if (widest == rows.cend())
        return {};
    std::string texts =
        (*widest)->objectName().toStdString() + " needs " + std::to_string((*widest)->minimumSize().width());
    for (int index = 0; index < (*widest)->count(); ++index) {
        if (const QWidget *widget = (*widest)->itemAt(index)->widget())
            texts += ", " + describe(widget) + " " + std::to_string(widget->minimumSizeHint().width());
    }
    return texts;
}

void expectRoomForTexts(const QWidget *column)
{
    for (const QWidget *widget : column->findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const QRect place(widget->mapTo(column, QPoint()), widget->size());
        EXPECT_TRUE(column->rect().contains(place)) << describe(widget);
        for (const TextRoom &room : textRoomsOf(widget))
            EXPECT_TRUE(room.isEnough()) << describe(widget) << " shows “" << qPrintable(room.text) << "”, which needs "
                                         << room.needed.width() << "x" << room.needed.height() << ", in "
                                         << room.given.width() << "x" << room.given.height();
    }
}

/// The characters of a text that no font has, so that its width would mean nothing.
QString charactersWithoutAFont(const QWidget *widget, const QString &text)
{
    QString missing;
    for (const uint character : text.toUcs4()) {
        if (character > 0xFF && !widget->fontMetrics().inFontUcs4(character))
            missing += QString::fromUcs4(reinterpret_cast<const char32_t *>(&character), 1);
    }
    return missing;
}

class TheWindowIn : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        window.root()->setAttribute(Qt::WA_DontShowOnScreen);
        window.root()->show();
    }

    QTabWidget *tabs() const { return window.find<QTabWidget>(QStringLiteral("tabbedView")); }

    void expectNothingClipped() const
    {
        for (int index = 0; index < tabs()->count(); ++index) {
            window.showPage(index);
            const auto *page = qobject_cast<const QScrollArea *>(window.page(index));
            const std::string size = std::to_string(page->width()) + "x" + std::to_string(page->height());
            const testing::ScopedTrace trace(__FILE__, __LINE__, tabs()->tabText(index).toStdString() + " at " + size);
            EXPECT_LE(page->widget()->width(), page->viewport()->width()) << widestRowOf(page->widget());
            expectRoomForTexts(page->widget());
        }
    }
    void expectWholeNamesOfPages() const
    {
        constexpr int besidesName = 6;
        for (int index = 0; index < tabs()->count(); ++index) {
            const int needed = tabs()->fontMetrics().size(Qt::TextShowMnemonic, tabs()->tabText(index)).width();
            EXPECT_LE(needed + besidesName, tabs()->tabBar()->tabRect(index).width()) << index;
        }
    }
    void resize(const QSize &size) const
    {
        window.root()->resize(size);
        runPendingEvents();
        EXPECT_EQ(window.root()->size(), size);
    }
    /// What the code says there, at its longest.
    void say(const char *label, const QString &english, const QStringList &filledIn = {}) const
    {
        const QString name = language == u"en" ? QStringLiteral("de") : language;
        const QMap<QString, QString> texts =
            stringTable(QStringLiteral("pane"), name, QStringLiteral("Localizable")).texts;
        ASSERT_TRUE(texts.contains(english)) << qPrintable(english);
        QString text = language == u"en" ? english : texts.value(english);
        for (const QString &each : filledIn)
            text = text.arg(each);
        auto *widget = window.find(QString::fromLatin1(label));
        ASSERT_TRUE(widget) << label;
        setStringValue(widget, text);
        widget->show();
    }
    void sayTheLongest() const
    {
        const QString keys = QStringLiteral("⌃⌥←, ⌃⌥→, ⌃⌥↑, ⌃⌥↓, ⌃⌥⇧⌘Z");
        say("enabledState", QStringLiteral("Lumaroo Disabled"));
        say("stateHint",
            QStringLiteral("&Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this "
                           "switch."));
        say("keysStateField",
            QStringLiteral("Some keys do not work, since other programs use them. The page “Keys” names them."));
        say("modifierHint",
            QStringLiteral("Shift alone would take the capital letters you type. Choose another modifier key with "
                           "it."));
        say("heldKeysField", QStringLiteral("%1 are used by other programs. Lumaroo cannot take them."), {keys});
        say("freeModifiersButton", QStringLiteral("Use %1 instead"), {QStringLiteral("⌃⌥⇧⌘")});
        runPendingEvents();
    }

    const QString language = QString::fromStdString(GetParam());
    const LoadedWindow window{language};
};

INSTANTIATE_TEST_SUITE_P(Language, TheWindowIn, testing::ValuesIn(languagesOfTheProgram()));

} // namespace

TEST_P(TheWindowIn, clipsNoText)
{
    sayTheLongest();
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.root()->setLayoutDirection(direction);
        resize(window.root()->sizeHint());
        expectWholeNamesOfPages();
        expectNothingClipped();
        resize(smallScreenWithinAFrame);
        expectNothingClipped();
    }
}

TEST_P(TheWindowIn, hasAFontForEveryCharacterThatItShows)
{
    for (const auto *label : window.root()->findChildren<QLabel *>())
        EXPECT_EQ(charactersWithoutAFont(label, label->text()), u"") << qPrintable(label->text());
    for (const auto *button : window.root()->findChildren<QAbstractButton *>())
        EXPECT_EQ(charactersWithoutAFont(button, button->text()), u"") << qPrintable(button->text());
}

TEST_P(TheWindowIn, fitsTheLongestKeyNameIntoAKey)
{
    resize(window.root()->sizeHint());
    window.showPage(1);
    const QString keyNames = QStringLiteral("tutorial"); // its own table is nothing but the names of keys
    for (const QLineEdit *field : window.page(1)->findChildren<QLineEdit *>()) {
        const QStyle *style = field->style();
        const int edge = 2 * (style->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field) + 3);
        const QMap<QString, QString> names =
            stringTable(keyNames, language == u"en" ? QStringLiteral("de") : language, QStringLiteral("Localizable"))
                .texts;
        for (auto name = names.cbegin(); name != names.cend(); ++name) {
            if (name.key() == u"Backtab") // no key by itself
                continue;
            const QString shown = (language == u"en" ? name.key() : name.value()).toUpper();
            EXPECT_GE(field->width() - edge, field->fontMetrics().horizontalAdvance(shown)) << qPrintable(shown);
        }
    }
}

TEST(TheWindow, clipsNoTextAtOneAndAHalfTimesTheSize)
{
    if (qEnvironmentVariableIsSet(scaledVariable))
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(scaledVariable), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("1.5"));
    QProcess scaled;
    scaled.setProcessEnvironment(environment);
    scaled.setProcessChannelMode(QProcess::ForwardedChannels);
    scaled.start(QCoreApplication::applicationFilePath(), QStringList());
    ASSERT_TRUE(scaled.waitForFinished(-1)) << qPrintable(scaled.errorString());
    EXPECT_EQ(scaled.exitCode(), 0);
}
