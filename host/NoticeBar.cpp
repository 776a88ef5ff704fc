#include "host/NoticeBar.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>

namespace {

constexpr int margin = 24;
constexpr int widestColumn = 720 + 2 * margin;
constexpr int gap = 12;
constexpr int symbolExtent = 24;
constexpr float shareOfGround = 0.12f;
constexpr float shareOfHairline = 0.4f;

class AlertAccessibility : public QAccessibleWidget
{
public:
    explicit AlertAccessibility(QWidget *bar) : QAccessibleWidget(bar, QAccessible::AlertMessage) { }

    static QAccessibleInterface *make(const QString &, QObject *object)
    {
        auto *bar = qobject_cast<NoticeBar *>(object);
        return bar ? new AlertAccessibility(bar) : nullptr;
    }
};

StyledLabel *makeText(const char *name, StyledLabel::TextStyle style)
{
    auto *label = new StyledLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextStyle(style);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton *makeButton(const char *name, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

void setTextOf(QPushButton *button, const QString &text)
{
    button->setText(text);
    button->setVisible(!text.isEmpty());
}

/// A triangle for what needs attention, a circle for what is good to know, with a sign in the ground's colour.
void paintSymbol(QPainter &painter, Notice::Kind kind, const QColor &color, const QColor &ground)
{
    constexpr qreal extent = symbolExtent;
    const bool isWarning = kind == Notice::Kind::Warning;
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    if (isWarning)
        painter.drawPolygon(QPolygonF{{extent / 2, 3}, {extent - 2, extent - 4}, {2, extent - 4}});
    else
        painter.drawEllipse(QRectF(2, 2, extent - 4, extent - 4));
    painter.setPen(QPen(ground, 2.4, Qt::SolidLine, Qt::RoundCap));
    const qreal dot = isWarning ? 17.2 : 7.4;
    const qreal lineTop = isWarning ? 8.8 : 11.6;
    painter.drawLine(QPointF(extent / 2, lineTop), QPointF(extent / 2, lineTop + 4.6));
    painter.drawPoint(QPointF(extent / 2, dot));
}

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QWidget(parent), symbol_(new QLabel), heading_(makeText("noticeHeading", StyledLabel::Heading)),
      text_(makeText("noticeText", StyledLabel::Body)), action_(makeButton("noticeAction", this)),
      dismissal_(makeButton("noticeDismissal", this))
{
    static const bool isInstalled = (QAccessible::installFactory(&AlertAccessibility::make), true);
    Q_UNUSED(isInstalled)
    setObjectName(QStringLiteral("noticeBar"));
    hide();
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(heading_);
    texts->addWidget(text_);
    auto *column = new QWidget;
    column->setMaximumWidth(widestColumn);
    auto *row = new QHBoxLayout(column);
    row->setContentsMargins(margin, gap, margin, gap);
    row->setSpacing(gap);
    row->addWidget(symbol_, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(action_);
    row->addWidget(dismissal_);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(column, 1000000); // all that it may have; the rest is at its sides
    layout->addStretch();
    connect(action_, &QPushButton::clicked, this, &NoticeBar::acted);
    connect(dismissal_, &QPushButton::clicked, this, &NoticeBar::dismissed);
    followPalette();
}

void NoticeBar::tell(const std::optional<Notice> &notice)
{
    if (notice == notice_)
        return;
    notice_ = notice;
    // An assistive tool reads what is hidden as well.
    show(notice.value_or(Notice()));
    setVisible(notice_.has_value());
    if (!notice_)
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::show(const Notice &notice)
{
    heading_->setText(notice.heading);
    text_->setText(notice.text);
    setTextOf(action_, notice.action);
    setTextOf(dismissal_, notice.dismissal);
    symbol_->setPixmap(symbol());
    setAccessibleName(notice.heading);
    setAccessibleDescription(notice.text);
}

QPixmap NoticeBar::symbol() const
{
    QPixmap pixmap(QSize(symbolExtent, symbolExtent) * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    if (notice_)
        paintSymbol(painter, notice_->kind, palette().color(QPalette::WindowText), palette().color(QPalette::Window));
    return pixmap;
}

void NoticeBar::followPalette()
{
    const QScopedValueRollback<bool> guard(following_, true);
    const QPalette around = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    QPalette own = around;
    own.setResolveMask(0);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        own.setColor(group, QPalette::Window,
            mixed(around.color(group, QPalette::Window), around.color(QPalette::Active, QPalette::Highlight),
                shareOfGround));
    }
    setPalette(own);
    symbol_->setPixmap(symbol());
}

bool NoticeBar::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    const bool isOfPalette = event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange;
    if (isOfPalette && !following_)
        followPalette();
    return handled;
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Window);
    painter.fillRect(rect(), ground);
    painter.fillRect(
        QRect(0, height() - 1, width(), 1), mixed(ground, palette().color(QPalette::Highlight), shareOfHairline));
}
