#include "platform/appkit/alerts/NSAlert.h"

#include "platform/appkit/NSWindow.h"
#include "platform/appkit/alerts/internal/AlertSheets.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/help/NSHelpManager.h"
#include "platform/foundation/bundles/NSBundle.h"

namespace {

QString localized(const NSBundle *bundle, const QString &text)
{
    return bundle ? bundle->localizedStringForKeyValueTable(text) : text;
}

void openHelp(const QString &anchor, const NSBundle *bundle)
{
    const QVariantMap info = bundle ? bundle->infoDictionary() : QVariantMap();
    const QString book = info.value(QStringLiteral("CFBundleHelpBookName")).toString();
    NSHelpManager::sharedHelpManager()->openHelpAnchorInBook(anchor, book);
}

} // namespace

class NSAlert::Private
{
public:
    bool isCancel(const QString &title) const;
    int indexOfCancelButton() const;
    AlertContent finishedContent() const;

    AlertContent content;
    bool showsHelp = false;
    bool showsSuppressionButton = false;
    QString helpAnchor;
    NSBundle *helpBundle = nullptr;
};

bool NSAlert::Private::isCancel(const QString &title) const
{
    const QString cancel = QStringLiteral("Cancel");
    const QString plain = QString(title).remove(u'&');
    return plain == cancel || plain == localized(NSBundle::mainBundle(), cancel)
        || plain == localized(helpBundle, cancel);
}

int NSAlert::Private::indexOfCancelButton() const
{
    for (int index = 0; index < content.buttons.size(); ++index) {
        if (isCancel(content.buttons[index].title))
            return index;
    }
    return content.buttons.size() == 1 ? 0 : -1;
}

AlertContent NSAlert::Private::finishedContent() const
{
    AlertContent finished = content;
    finished.cancelButton = indexOfCancelButton();
    if (finished.buttons.isEmpty()) {
        finished.buttons += AlertContent::Button{localized(NSBundle::mainBundle(), QStringLiteral("OK")), {}};
        finished.cancelButton = 0;
    }
    finished.helpTitle = localized(NSBundle::mainBundle(), QStringLiteral("Help"));
    if (showsHelp)
        finished.openHelp = [anchor = helpAnchor, bundle = helpBundle] { openHelp(anchor, bundle); };
    if (showsSuppressionButton)
        finished.suppressionTitle =
            localized(NSBundle::mainBundle(), QStringLiteral("&Do not show this message again"));
    return finished;
}

NSAlert::NSAlert() : d(std::make_unique<Private>()) { }

NSAlert::~NSAlert() = default;

void NSAlert::setMessageText(const QString &text)
{
    d->content.message = text;
}

void NSAlert::setInformativeText(const QString &text)
{
    d->content.information = text;
}

void NSAlert::setIconFile(const QString &path)
{
    d->content.iconFile = path;
}

void NSAlert::addButtonWithTitle(const QString &title)
{
    d->content.buttons += AlertContent::Button{title, {}};
}

void NSAlert::setKeyEquivalent(int buttonIndex, const QString &key)
{
    if (buttonIndex >= 0 && buttonIndex < d->content.buttons.size())
        d->content.buttons[buttonIndex].key = key;
}

void NSAlert::setShowsHelp(bool shows)
{
    d->showsHelp = shows;
}

void NSAlert::setHelpAnchor(const QString &anchor, NSBundle *bundle)
{
    d->helpAnchor = anchor;
    d->helpBundle = bundle;
}

void NSAlert::setShowsSuppressionButton(bool shows)
{
    d->showsSuppressionButton = shows;
}

int NSAlert::suppressionButtonState() const
{
    return d->content.suppressionIsOn ? NSOnState : NSOffState;
}

void NSAlert::setSuppressionButtonState(int state)
{
    d->content.suppressionIsOn = state == NSOnState;
}

void NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(std::unique_ptr<NSAlert> alert,
    QWidget *view, const QObject *modalDelegate, const DidEnd &didEnd, const QString &contextInfo)
{
    const std::shared_ptr<NSAlert> shown = std::move(alert);
    const auto end = [shown, didEnd, contextInfo](const AlertWindow &window) {
        shown->d->content.suppressionIsOn = window.suppressionIsOn();
        if (didEnd)
            didEnd(shown.get(), NSAlertFirstButtonReturn + window.pressedButton(), contextInfo);
    };
    AlertSheets::ofView(view)->begin({shown->d->finishedContent(), modalDelegate, end});
}

int NSAlert::runModal(QWidget *window)
{
    const AlertContent content = d->finishedContent();
    // The window it belongs to may be destroyed while it runs, and takes it along.
    const QPointer<AlertWindow> shown = new AlertWindow(content, Qt::ApplicationModal, window ? window : frontWindow());
    shown->exec();
    const int pressed = shown ? shown->pressedButton() : -1;
    d->content.suppressionIsOn = shown && shown->suppressionIsOn();
    delete shown;
    if (pressed >= 0)
        return NSAlertFirstButtonReturn + pressed;
    const int last = int(content.buttons.size()) - 1;
    return NSAlertFirstButtonReturn + (content.cancelButton >= 0 ? content.cancelButton : last);
}

int NSRunAlertPanel(const QString &title, const QString &message, const QString &defaultButton,
    const QString &alternateButton, const QString &otherButton, QWidget *window)
{
    NSAlert alert;
    alert.setMessageText(title);
    alert.setInformativeText(message);
    const std::pair<QString, NSAlertPanelReturn> buttons[] = {{defaultButton, NSAlertDefaultReturn},
        {alternateButton, NSAlertAlternateReturn}, {otherButton, NSAlertOtherReturn}};
    QList<NSAlertPanelReturn> answers;
    for (const auto &[button, answer] : buttons) {
        if (button.isEmpty())
            continue;
        alert.addButtonWithTitle(button);
        answers += answer;
    }
    return answers.value(alert.runModal(window) - NSAlertFirstButtonReturn, NSAlertDefaultReturn);
}
