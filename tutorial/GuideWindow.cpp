#include "tutorial/GuideWindow.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/StyledLabel.h"
#include "tutorial/KeyCaps.h"
#include "tutorial/ProgressDots.h"
#include "tutorial/TutorialText.h"
#include "tutorial/WindowRequests.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QPushButton>

namespace {

constexpr int guideWidth = 640;
constexpr int margin = 24;
constexpr int linesOfText = 3;
constexpr int linesOfRemark = 2;

StyledLabel *styledLabel(QWidget *parent, const char *name, StyledLabel::TextStyle style)
{
    auto *label = new StyledLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextStyle(style);
    return label;
}

QLabel *textLabel(QWidget *parent, const char *name, int lines)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    QFont larger = label->font();
    larger.setPointSizeF(larger.pointSizeF() * 1.1);
    label->setFont(larger);
    label->setMinimumHeight(lines * QFontMetrics(larger).lineSpacing());
    return label;
}

QString signOf(GuidePage::Tone tone)
{
    switch (tone) {
    case GuidePage::Tone::Good:
        return QStringLiteral("✓");
    case GuidePage::Tone::Hint:
        return QStringLiteral("↺");
    case GuidePage::Tone::Plain:
        break;
    }
    return QStringLiteral("→");
}

} // namespace

GuideWindow::GuideWindow()
{
    setObjectName(QStringLiteral("guide"));
    setWindowFlags(Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint
        | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin - 6, margin, margin - 6);
    layout->setSpacing(10);
    layout->addWidget(makeHeader());
    title_ = styledLabel(this, "title", StyledLabel::Title);
    layout->addWidget(title_);
    caps_ = new KeyCaps(this);
    caps_->setMinimumHeight(caps_->sizeHint().height());
    layout->addWidget(caps_);
    text_ = textLabel(this, "text", linesOfText);
    layout->addWidget(text_);
    layout->addWidget(makeRemark());
    layout->addStretch();
    layout->addLayout(makeButtons());
    keys_ = styledLabel(this, "keys", StyledLabel::Secondary);
    layout->addWidget(keys_);
    leaveOutOfTaskBars(this);
}

QWidget *GuideWindow::makeHeader()
{
    auto *header = new QWidget(this);
    progress_ = styledLabel(header, "progress", StyledLabel::Secondary);
    dots_ = new ProgressDots(header);
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(progress_, 1);
    layout->addWidget(dots_);
    return header;
}

QWidget *GuideWindow::makeRemark()
{
    auto *row = new QWidget(this);
    sign_ = textLabel(row, "sign", 1);
    sign_->setWordWrap(false);
    sign_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("→ ")) + 6);
    remark_ = textLabel(row, "remark", linesOfRemark);
    QFont bold = remark_->font();
    bold.setBold(true);
    remark_->setFont(bold);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(sign_);
    layout->addWidget(remark_, 1);
    return row;
}

QPushButton *GuideWindow::makeButton(const char *name)
{
    auto *button = new QPushButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(true);
    return button;
}

QBoxLayout *GuideWindow::makeButtons()
{
    back_ = makeButton("back");
    skip_ = makeButton("skip");
    second_ = makeButton("second");
    first_ = makeButton("first");
    first_->setDefault(true);
    auto *row = new QHBoxLayout;
    row->addWidget(back_);
    row->addWidget(skip_);
    row->addStretch();
    row->addWidget(second_);
    row->addWidget(first_);
    return row;
}

void GuideWindow::setButton(QPushButton *button, const GuidePage::Button &content)
{
    button->disconnect(this);
    button->setVisible(content.wish != Wish::None);
    button->setText(content.text);
    connect(button, &QPushButton::clicked, this, [this, wish = content.wish] { Q_EMIT wished(wish); });
}

void GuideWindow::setPage(const GuidePage &page)
{
    const QString name = tutorialText("Lumaroo tutorial");
    const bool isStep = page.number > 0;
    const QString place = tutorialText("%1 of %2").arg(page.number).arg(page.count);
    setWindowTitle(isStep ? place + QStringLiteral(" – ") + name : name);
    progress_->setText(isStep ? place : name);
    dots_->setProgress(page.number, page.count);
    title_->setText(page.title);
    caps_->setCaps(page.caps);
    caps_->setVisible(!page.caps.isEmpty());
    text_->setText(page.text);
    setRemark(page);
    const GuidePage::Button leave{Wish::Leave, tutorialText("&Leave the tutorial")};
    setButton(back_, isStep ? GuidePage::Button{Wish::GoBack, tutorialText("&Back")} : GuidePage::Button{});
    back_->setEnabled(page.canGoBack);
    setButton(skip_, page.skip);
    const bool leaves = page.first.wish == Wish::Leave;
    setButton(second_, page.second.wish != Wish::None || leaves || isStep ? page.second : leave);
    setButton(first_, isStep ? leave : page.first);
    keys_->setText(isStep ? tutorialText("Page Down skips a step, Page Up goes back, Escape leaves the tutorial.")
            : leaves      ? QString()
                          : tutorialText("Escape leaves the tutorial."));
    giveRoom();
}

void GuideWindow::setRemark(const GuidePage &page)
{
    const bool isNew = remark_->text() != page.remark && !page.remark.isEmpty();
    const QColor text = palette().color(QPalette::WindowText);
    const bool isDark = palette().color(QPalette::Window).lightness() < 128;
    const QColor good = isDark ? QColor(0x7fd8a4) : QColor(0x1a6b3f);
    const QColor hint = isDark ? QColor(0xffc078) : QColor(0x8a4b00);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText,
        page.tone == GuidePage::Tone::Good       ? good
            : page.tone == GuidePage::Tone::Hint ? hint
                                                 : text);
    for (QLabel *label : {sign_, remark_})
        label->setPalette(colors);
    sign_->setText(page.remark.isEmpty() ? QString() : signOf(page.tone));
    remark_->setText(page.remark);
    if (isNew) {
        QAccessibleEvent event(remark_, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

/// The same for all pages, unless a language needs more: nothing shall jump.
void GuideWindow::giveRoom()
{
    layout()->activate();
    tallest_ = std::max({tallest_, layout()->totalHeightForWidth(guideWidth), layout()->totalMinimumSize().height()});
    setFixedSize(guideWidth, tallest_);
}

QString GuideWindow::spokenText() const
{
    return QStringList{title_->text(), text_->text(), remark_->text()}.join(u' ').simplified();
}

void GuideWindow::focusButton()
{
    // Return shall not leave by mistake.
    const bool isStep = back_->isVisibleTo(this);
    for (QPushButton *button : {isStep ? skip_ : first_, second_}) {
        if (button->isVisibleTo(this) && button->isEnabled()) {
            button->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void GuideWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT wished(Wish::Leave);
}
