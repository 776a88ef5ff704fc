#include "updater/windows/UpdateWindow.h"

#include "updater/windows/ReleaseNotesView.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int iconExtent = 64;
constexpr int margin = 24;
constexpr int textWidth = 400;
constexpr QSize notesSize(400, 240);
constexpr int progressSteps = 1000;
constexpr int roomInButtons = 16; ///< beyond what the style leaves around a text
/// With release notes, where the screen has room for it.
constexpr QSize sizeWithNotes(720, 460);
constexpr QSize besideWindow(16, 48); ///< of the screen, for its frame

QFont headingFont()
{
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    return font;
}

QFont secondaryFont()
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    return font;
}

QLabel *addText(QBoxLayout *column, const QString &name, const QString &text, const QFont &font = QApplication::font())
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setFont(font);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    column->addWidget(label);
    return label;
}

} // namespace

UpdateWindow::UpdateWindow(const QString &title, const QIcon &icon) : icon_(icon)
{
    setObjectName(QStringLiteral("updateWindow"));
    setWindowTitle(title);
    // The settings end with their own window.
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
}

void UpdateWindow::setPage(const UpdatePage &page)
{
    if (body_) {
        // The press of one of its buttons may have led here.
        body_->hide();
        layout()->removeWidget(body_);
        body_->deleteLater();
        body_->setObjectName(QString());
    }
    escapeButton_ = page.escapeButton;
    defaultButton_ = page.defaultButton;
    hasNotes_ = page.content == UpdatePage::Content::Notes;
    body_ = makeBody(page);
    layout()->addWidget(body_);
    // Hidden, it would take no room.
    body_->show();
    setAccessibleDescription(page.heading + u'\n' + page.text);
    fit();
    focusDefault();
    announce();
}

/// Screen readers tell it, also where the focus is elsewhere.
void UpdateWindow::announce()
{
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QWidget *UpdateWindow::makeBody(const UpdatePage &page)
{
    auto *body = new QWidget;
    body->setObjectName(page.name);
    auto *row = new QHBoxLayout(body);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(18);
    auto *picture = new QLabel;
    picture->setPixmap(icon_.pixmap(QSize(iconExtent, iconExtent), devicePixelRatioF()));
    if (icon_.isNull())
        picture->hide();
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(makeColumn(page), 1);
    return body;
}

QBoxLayout *UpdateWindow::makeColumn(const UpdatePage &page)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(12);
    addTexts(column, page);
    if (page.content == UpdatePage::Content::Notes)
        addNotes(column);
    else
        column->addStretch();
    if (page.content == UpdatePage::Content::Progress)
        addProgress(column, page.heading);
    column->addSpacing(6);
    column->addLayout(makeButtons(page));
    return column;
}

void UpdateWindow::addTexts(QBoxLayout *column, const UpdatePage &page)
{
    addText(column, QStringLiteral("heading"), page.heading, headingFont());
    text_ = addText(column, QStringLiteral("text"), page.text);
    if (page.text.isEmpty())
        text_->hide();
    if (page.detail.isEmpty())
        return;
    QLabel *detail = addText(column, QStringLiteral("detail"), page.detail, secondaryFont());
    detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void UpdateWindow::addProgress(QBoxLayout *column, const QString &name)
{
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setAccessibleName(name);
    progress_->setTextVisible(false);
    progress_->setRange(0, 0);
    column->addWidget(progress_);
}

void UpdateWindow::addNotes(QBoxLayout *column)
{
    notes_ = new ReleaseNotesView(this);
    notes_->setMinimumSize(notesSize);
    connect(notes_, &QTextBrowser::anchorClicked, this, &UpdateWindow::linkChosen);
    column->addWidget(notes_, 1);
}

QLayout *UpdateWindow::makeButtons(const UpdatePage &page)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    bool isTrailing = false;
    for (const UpdateButton &content : page.buttons) {
        if (content.place == UpdateButton::Place::Trailing && !std::exchange(isTrailing, true))
            row->addStretch();
        auto *button = new QPushButton(content.text);
        button->setObjectName(content.name);
        button->setMinimumWidth(button->sizeHint().width() + roomInButtons);
        button->setAutoDefault(true);
        button->setDefault(content.name == page.defaultButton);
        connect(button, &QPushButton::clicked, this, [this, name = content.name] { Q_EMIT pressed(name); });
        row->addWidget(button);
    }
    return row;
}

void UpdateWindow::fit()
{
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    layout()->activate();
    const QSize hint = layout()->totalSizeHint();
    const QSize wanted(hint.width(), qMax(hint.height(), layout()->totalHeightForWidth(hint.width())));
    const QSize room = screen()->availableSize() - besideWindow;
    resize(hasNotes_ ? wanted.expandedTo(sizeWithNotes.boundedTo(room)) : wanted);
    setMinimumSize(wanted);
}

void UpdateWindow::focusDefault()
{
    if (auto *button = body_->findChild<QPushButton *>(defaultButton_))
        button->setFocus();
}

void UpdateWindow::comeToFront()
{
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void UpdateWindow::appearQuietly()
{
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    show();
}

void UpdateWindow::setProgress(qint64 done, qint64 total, const QString &text)
{
    if (!progress_)
        return;
    const bool isKnown = total > 0;
    progress_->setRange(0, isKnown ? progressSteps : 0);
    if (isKnown)
        progress_->setValue(int(double(done) / double(total) * progressSteps));
    text_->setText(text);
}

void UpdateWindow::setNotes(const QString &html)
{
    if (notes_)
        notes_->setNotes(html);
}

void UpdateWindow::tell(const QString &text)
{
    text_->setText(text);
    text_->show();
    setAccessibleDescription(text);
    fit();
    announce();
}

void UpdateWindow::reject()
{
    if (!escapeButton_.isEmpty())
        Q_EMIT pressed(escapeButton_);
}
