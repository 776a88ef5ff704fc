#include "updater/windows/UpdatePages.h"

#include "updater/UpdateText.h"
#include "updater/core/UpdateChoice.h"
#include "updater/windows/UpdateFailures.h"

#include <QHash>
#include <QLocale>

namespace {

using Content = UpdatePage::Content;
using Place = UpdateButton::Place;

const QHash<QString, const char *> &buttonTexts()
{
    static const QHash<QString, const char *> texts{
        {pressCancel, "&Cancel"},
        {pressSkip, "&Skip this version"},
        {pressLater, "&Later"},
        {pressInstall, "&Install update"},
        {pressRestart, "&Install and restart"},
        {pressOpenPage, "&Open its web page"},
        {pressClose, "&Close"},
    };
    return texts;
}

/// Nothing else is given to a browser.
bool isWebPage(const QUrl &address)
{
    return address.isValid()
        && (address.scheme() == QStringLiteral("https") || address.scheme() == QStringLiteral("http"));
}

const char *urgency(bool isCritical)
{
    return isCritical ? "It mends something that matters: install it soon." : "It can be downloaded and installed now.";
}

const char *whereFrom(bool hasPage)
{
    return hasPage ? "It is not installed from here. Its web page tells how to get it."
                   : "It is not installed from here. Get it from where you got the version that you have.";
}

QString size(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace

QString UpdatePages::text(const char *english) const
{
    return updateText(bundle_, QString::fromLatin1(english));
}

UpdateButton UpdatePages::button(const QString &press) const
{
    return {press, text(buttonTexts().value(press)), press == pressSkip ? Place::Leading : Place::Trailing};
}

QString UpdatePages::windowTitle() const
{
    return text("Lumaroo update");
}

UpdatePage UpdatePages::checking() const
{
    return {.name = QStringLiteral("checking"),
        .heading = text("Looking for a new version"),
        .text = {},
        .content = Content::Progress,
        .buttons = {button(pressCancel)},
        .defaultButton = pressCancel,
        .escapeButton = pressCancel};
}

UpdatePage UpdatePages::upToDate(const QString &displayVersion) const
{
    return {.name = QStringLiteral("upToDate"),
        .heading = text("Lumaroo is up to date"),
        .text = text("Version %1 is the newest one.").arg(displayVersion),
        .buttons = {button(pressClose)},
        .defaultButton = pressClose,
        .escapeButton = pressClose};
}

UpdatePage UpdatePages::offer(const AppcastItem &item, const QString &installedVersion) const
{
    const bool isCritical = isCriticalFor(item, installedVersion);
    const bool isInformational = isInformationalFor(item, installedVersion);
    const bool hasNotes = item.releaseNotes.isValid() || !item.description.isEmpty();
    const bool hasPage = isWebPage(item.link);
    UpdatePage page{.name = QStringLiteral("offer"),
        .heading = text(isCritical ? "There is an important update: Lumaroo %1" : "There is a new version: Lumaroo %1")
                       .arg(item.displayVersion),
        .text = text(isInformational ? whereFrom(hasPage) : urgency(isCritical)),
        .content = hasNotes ? Content::Notes : Content::None,
        .buttons = offerButtons(!isCritical, hasPage, isInformational)};
    page.defaultButton = page.buttons.last().name;
    page.escapeButton = pressLater;
    return page;
}

QList<UpdateButton> UpdatePages::offerButtons(bool isSkippable, bool hasPage, bool isInformational) const
{
    QList<UpdateButton> buttons;
    if (isSkippable)
        buttons += button(pressSkip);
    buttons += button(pressLater);
    if (!isInformational)
        buttons += button(pressInstall);
    else if (hasPage)
        buttons += button(pressOpenPage);
    return buttons;
}

UpdatePage UpdatePages::download(const QString &displayVersion) const
{
    return {.name = QStringLiteral("download"),
        .heading = text("Downloading Lumaroo %1").arg(displayVersion),
        .text = text("Waiting for the server"),
        .content = Content::Progress,
        .buttons = {button(pressCancel)},
        .defaultButton = pressCancel,
        .escapeButton = pressCancel};
}

UpdatePage UpdatePages::preparing(const QString &displayVersion) const
{
    return {.name = QStringLiteral("preparing"),
        .heading = text("Preparing Lumaroo %1").arg(displayVersion),
        .text = text("Checking that it is genuine, and unpacking it"),
        .content = Content::Progress,
        .buttons = {button(pressCancel)},
        .defaultButton = pressCancel,
        .escapeButton = pressCancel};
}

UpdatePage UpdatePages::ready(const QString &displayVersion) const
{
    return {.name = QStringLiteral("ready"),
        .heading = text("Lumaroo %1 is ready").arg(displayVersion),
        .text = text("The settings close for a moment and come back with the new version. If you choose Later, it is "
                     "installed when you close the settings."),
        .buttons = {button(pressLater), button(pressRestart)},
        .defaultButton = pressRestart,
        .escapeButton = pressLater};
}

UpdatePage UpdatePages::installedAtEnd(const QString &displayVersion) const
{
    return {.name = QStringLiteral("installedAtEnd"),
        .heading = text("Lumaroo %1 is about to be installed").arg(displayVersion),
        .text = text("It is installed as soon as the settings are closed. Answer what they still ask, or close them "
                     "yourself."),
        .buttons = {button(pressClose)},
        .defaultButton = pressClose,
        .escapeButton = pressClose};
}

UpdatePage UpdatePages::installed(const QString &displayVersion) const
{
    return {.name = QStringLiteral("installed"),
        .heading = text("Lumaroo %1 is installed").arg(displayVersion),
        .text = text("Close the settings and open them again to use it."),
        .buttons = {button(pressClose)},
        .defaultButton = pressClose,
        .escapeButton = pressClose};
}

UpdatePage UpdatePages::failure(const UpdateProblem &problem) const
{
    const UpdateFailure failure = updateFailure(problem.kind);
    return {.name = QStringLiteral("failure"),
        .heading = text(failure.heading),
        .text = text(failure.text),
        .detail = problem.detail,
        .buttons = {button(pressClose)},
        .defaultButton = pressClose,
        .escapeButton = pressClose};
}

QString UpdatePages::progressText(qint64 received, qint64 total) const
{
    return text("%1 of %2").arg(size(received), size(total));
}

QString UpdatePages::notesAreMissing() const
{
    return text("The release notes cannot be shown now.");
}

QString UpdatePages::pageIsNotOpened(const QUrl &address) const
{
    return text("The web page cannot be opened from here. Its address is: %1").arg(address.toDisplayString());
}
