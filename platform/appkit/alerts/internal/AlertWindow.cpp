#include "platform/appkit/alerts/internal/AlertWindow.h"

#include "platform/appkit/alerts/internal/OwnKeys.h"
#include "platform/foundation/Boundary.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr int iconExtent = 64;
constexpr int mostImages = 32;

/// The smallest image of a file that is large enough, else its largest; null when there is none to read.
QImage readIcon(const QString &path, int wantedExtent)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QImage best;
    for (int index = 0; index < qMin(reader.imageCount(), mostImages) && reader.jumpToImage(index); ++index) {
        const QImage image = reader.read();
        const bool isCloser = best.width() < wantedExtent
            ? image.width() > best.width()
            : image.width() >= wantedExtent && image.width() < best.width();
        if (isCloser)
            best = image;
    }
    return best.isNull() ? QImage(path) : best;
}

QPixmap iconPixmap(const QString &path, double ratio)
{
    const int extent = qRound(iconExtent * ratio);
    const QImage image = path.isEmpty() ? QImage() : readIcon(path, extent);
    if (image.isNull())
        return {};
    QPixmap pixmap = QPixmap::fromImage(image.scaled(extent, extent, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

AlertWindow::AlertWindow(const AlertContent &content, Qt::WindowModality modality, QWidget *parent)
    : QDialog(parent), content_(content), ownKeys_(new OwnKeys(this))
{
    setWindowModality(modality);
    // It stays in front of its window until it is answered: nothing to minimise or to maximise.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
        | Qt::WindowCloseButtonHint);
    setWindowTitle(parent ? parent->window()->windowTitle() : QGuiApplication::applicationDisplayName());
    setAccessibleName(content.message);
    setAccessibleDescription(content.information);

    auto *all = new QHBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 24);
    all->setSpacing(18);
    if (const QPixmap pixmap = iconPixmap(content.iconFile, devicePixelRatioF()); !pixmap.isNull()) {
        auto *icon = new QLabel(this);
        icon->setObjectName(QStringLiteral("icon"));
        icon->setPixmap(pixmap);
        all->addWidget(icon, 0, Qt::AlignTop);
    }
    QVBoxLayout *column = makeTexts();
    column->addStretch();
    column->addSpacing(12);
    if (!content.suppressionTitle.isEmpty()) {
        column->addWidget(makeSuppressionBox());
        column->addSpacing(12);
    }
    column->addLayout(makeButtonRow());
    all->addLayout(column, 1);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

QVBoxLayout *AlertWindow::makeTexts()
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(6);
    addText(texts, content_.message, true);
    addText(texts, content_.information, false);
    return texts;
}

void AlertWindow::addText(QVBoxLayout *texts, const QString &text, bool isMessage)
{
    if (text.isEmpty())
        return;
    auto *label = new QLabel(this);
    label->setObjectName(isMessage ? QStringLiteral("message") : QStringLiteral("information"));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setMinimumWidth(360);
    QFont font = label->font();
    font.setBold(isMessage);
    label->setFont(font);
    texts->addWidget(label);
}

QLayout *AlertWindow::makeButtonRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    if (content_.openHelp)
        row->addWidget(makeHelpButton());
    row->addStretch();
    for (int index = 0; index < content_.buttons.size(); ++index)
        buttons_ += makeButton(index);
    // The first button stands at the end of the row, where reading ends.
    for (auto button = buttons_.crbegin(); button != buttons_.crend(); ++button)
        row->addWidget(*button);
    for (int index = 1; index < buttons_.size(); ++index)
        setTabOrder(buttons_[index - 1], buttons_[index]);
    firstFocus()->setDefault(true);
    return row;
}

QPushButton *AlertWindow::makeButton(int index)
{
    const AlertContent::Button &content = content_.buttons[index];
    auto *button = new QPushButton(content.title, this);
    button->setAutoDefault(true);
    button->setAccessibleName(QString(content.title).remove(u'&'));
    connect(button, &QPushButton::clicked, this, [this, index] { press(index); });
    if (!content.key.isEmpty())
        connect(new QShortcut(QKeySequence(content.key), this), &QShortcut::activated, button,
            [button] { button->click(); });
    return button;
}

QWidget *AlertWindow::makeHelpButton()
{
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("help"));
    button->setText(QStringLiteral("?"));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(content_.helpTitle);
    button->setToolTip(content_.helpTitle);
    connect(button, &QToolButton::clicked, this, [this] { runAtBoundary("alert help button", content_.openHelp); });
    connect(
        new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, button, [button] { button->click(); });
    return button;
}

QCheckBox *AlertWindow::makeSuppressionBox()
{
    suppressionBox_ = new QCheckBox(content_.suppressionTitle, this);
    suppressionBox_->setObjectName(QStringLiteral("suppression"));
    suppressionBox_->setChecked(content_.suppressionIsOn);
    return suppressionBox_;
}

bool AlertWindow::suppressionIsOn() const
{
    return suppressionBox_ && suppressionBox_->isChecked();
}

void AlertWindow::press(int index)
{
    pressedButton_ = index;
    accept();
}

void AlertWindow::reject()
{
    if (content_.cancelButton >= 0)
        buttons_[content_.cancelButton]->click();
}

void AlertWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (parentWidget() && parentWidget()->windowHandle())
        parentWidget()->windowHandle()->installEventFilter(this);
    // The key that brought the alert up may be down still: its repeats must not answer it.
    windowHandle()->installEventFilter(ownKeys_);
    firstFocus()->setFocus();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool AlertWindow::eventFilter(QObject *object, QEvent *event)
{
    // A click gives the keyboard to the window that waits, where it would do nothing.
    if (event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(this, &AlertWindow::takeFocusBack, Qt::QueuedConnection);
    return QDialog::eventFilter(object, event);
}

void AlertWindow::takeFocusBack()
{
    if (!isVisible())
        return;
    raise();
    activateWindow();
}
