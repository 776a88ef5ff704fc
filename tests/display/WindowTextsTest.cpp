// What the pane's window says: every text in German too, none clipped, none jumping.

#include "LoadedWindow.h"
#include "Wait.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

namespace {

using testing::UnorderedElementsAreArray;

constexpr int pages = 6;

QFile *sourceFile(const QString &name)
{
    auto *file = new QFile(qEnvironmentVariable("LUMAROO_SOURCE") + QStringLiteral("/resources/pane/") + name);
    if (!file->open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file->fileName()));
    return file;
}

/// The texts of an interface file that a user sees.
QStringList textsOfTheWindow()
{
    const std::unique_ptr<QFile> file(sourceFile(QStringLiteral("LumarooPref.ui")));
    QXmlStreamReader reader(file.get());
    QStringList texts;
    bool inNames = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.name() == QLatin1StringView("stringlist"))
            inNames = reader.isStartElement();
        const bool isText = reader.isStartElement() && reader.name() == QLatin1StringView("string") && !inNames
            && !reader.attributes().hasAttribute(QStringLiteral("notr"));
        if (isText)
            texts += reader.readElementText();
    }
    texts.removeDuplicates();
    return texts;
}

/// A string table's texts with their translations.
QMap<QString, QString> stringTable(const QString &name)
{
    const std::unique_ptr<QFile> file(sourceFile(QStringLiteral("de.lproj/") + name + QStringLiteral(".ts")));
    QXmlStreamReader reader(file.get());
    QMap<QString, QString> table;
    QString key;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1StringView("name"))
            EXPECT_EQ(reader.readElementText(), name);
        else if (reader.name() == QLatin1StringView("source"))
            key = reader.readElementText();
        else if (reader.name() == QLatin1StringView("translation"))
            table[key] = reader.readElementText();
    }
    return table;
}

/// The size a widget needs for what it shows at the width it has.
QSize neededSize(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap())
        return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
    return widget->sizeHint();
}

bool showsText(const QWidget *widget)
{
    return widget->isVisible()
        && (qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget)
            || qobject_cast<const QComboBox *>(widget));
}

void expectNothingClipped(const LoadedWindow &window)
{
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        const auto *page = qobject_cast<const QScrollArea *>(window.page(index));
        const QWidget *column = page->widget();
        EXPECT_LE(column->width(), page->viewport()->width()) << "it scrolls up and down only";
        for (const QWidget *widget : column->findChildren<QWidget *>()) {
            if (!showsText(widget))
                continue;
            const QSize needed = neededSize(widget);
            EXPECT_GE(widget->width(), needed.width()) << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), needed.height()) << widget->objectName().toStdString();
            const QRect place(widget->mapTo(column, QPoint()), widget->size());
            EXPECT_TRUE(column->rect().contains(place)) << widget->objectName().toStdString();
        }
    }
}

class TheWindowIn : public testing::TestWithParam<const char *>
{
protected:
    LoadedWindow window{QString::fromLatin1(GetParam())};
};

TEST_P(TheWindowIn, clipsNoText)
{
    window.show();
    expectNothingClipped(window);
}

TEST_P(TheWindowIn, clipsNoTextWhenMirrored)
{
    window.root()->setLayoutDirection(Qt::RightToLeft);
    window.show();
    expectNothingClipped(window);
}

TEST_P(TheWindowIn, keepsItsSizeBetweenPages)
{
    window.show();
    const QSize size = window.root()->size();
    EXPECT_EQ(size, window.root()->sizeHint());
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        EXPECT_EQ(window.root()->size(), size) << index;
        EXPECT_EQ(window.root()->sizeHint(), size) << index;
    }
}

TEST_P(TheWindowIn, fitsASmallScreen)
{
    EXPECT_LE(window.root()->sizeHint().width(), 800);
    EXPECT_LE(window.root()->sizeHint().height(), 600);
}

TEST_P(TheWindowIn, fitsTheLongestKeyNameIntoAKey)
{
    window.show();
    window.showPage(1);
    for (const QLineEdit *field : window.page(1)->findChildren<QLineEdit *>()) {
        const QStyle *style = field->style();
        const int edge = 2 * (style->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field) + 3);
        EXPECT_GE(field->width() - edge, field->fontMetrics().horizontalAdvance(QStringLiteral("BACKSPACE")));
    }
}

INSTANTIATE_TEST_SUITE_P(Language, TheWindowIn, testing::Values("en", "de"));

TEST(TheWindowsTexts, areAllTranslatedIntoGermanAndNoneTooMany)
{
    const QMap<QString, QString> german = stringTable(QStringLiteral("LumarooPref"));
    EXPECT_THAT(german.keys(), UnorderedElementsAreArray(textsOfTheWindow()));
    for (auto entry = german.cbegin(); entry != german.cend(); ++entry)
        EXPECT_FALSE(entry.value().isEmpty()) << entry.key().toStdString();
}

TEST(TheWindowsTexts, areGermanForAGermanUser)
{
    const LoadedWindow window(QStringLiteral("de"));
    const QMap<QString, QString> german = stringTable(QStringLiteral("LumarooPref"));
    EXPECT_EQ(
        window.find<QLabel>(QStringLiteral("nextHeading"))->text(), german.value(QStringLiteral("What to do next")));
    EXPECT_EQ(
        window.find<QComboBox>(QStringLiteral("VerticalPopup"))->itemText(1), german.value(QStringLiteral("Top edge")));
    EXPECT_EQ(window.find(QStringLiteral("overlayColorWell"))->toolTip(),
        german.value(QStringLiteral("Choose the color of the overlay")));
    EXPECT_EQ(window.find<QTabWidget>(QStringLiteral("tabbedView"))->tabText(1), german.value(QStringLiteral("&Keys")));
}

TEST(TheCodesTexts, keepTheirPlaceholdersInGerman)
{
    const QMap<QString, QString> german = stringTable(QStringLiteral("Localizable"));
    const QStringList texts{QStringLiteral("Lumaroo Enabled"), QStringLiteral("Lumaroo Disabled"),
        QStringLiteral("Version %@ (%@)"), QStringLiteral("Quit while key conflicts exist?"),
        QStringLiteral("The marked keys have multiple actions assigned to them. Quitting may cause unpredictable "
                       "Lumaroo behavior."),
        QStringLiteral("Quit"), QStringLiteral("Cancel"), QStringLiteral("%@ is already in use."),
        QStringLiteral("Lumaroo already has an action associated with %@. Please choose another key."),
        QStringLiteral("There are conflicts with the marked keys."),
        QStringLiteral("The marked keys have multiple actions assigned to them. Please change them to remove the "
                       "conflicts."),
        QStringLiteral("Please change the marked HotKeys in the programs using them before setting them in Lumaroo."),
        QStringLiteral("At least one modifier must be set"),
        QStringLiteral("At least one modifier must be set to activate Lumaroo. Please select another modifier before "
                       "unselecting this one."),
        QStringLiteral("The web page is unavailable"),
        QStringLiteral("Please make sure you are connected to the Internet and try again later.")};
    for (const QString &text : texts) {
        const QString translated = german.value(text);
        EXPECT_FALSE(translated.isEmpty()) << text.toStdString();
        EXPECT_EQ(translated.count(QStringLiteral("%@")), text.count(QStringLiteral("%@"))) << text.toStdString();
    }
}

} // namespace
