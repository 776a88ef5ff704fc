#include "host/HostHeader.h"

#include "host/HostText.h"
#include "host/SearchField.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr int leastSide = 120;

QToolButton *makeBackButton(QWidget *header)
{
    auto *button = new QToolButton(header);
    button->setObjectName(QStringLiteral("backButton"));
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setArrowType(header->isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    button->setText(hostText(QStringLiteral("&All settings")));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(QKeySequence(Qt::ALT | Qt::Key_Left).toString(QKeySequence::NativeText));
    return button;
}

QLabel *makeTitle(QWidget *header)
{
    auto *title = new QLabel(header);
    title->setObjectName(QStringLiteral("paneTitle"));
    title->setTextFormat(Qt::PlainText);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    return title;
}

} // namespace

HostHeader::HostHeader(QWidget *parent)
    : QWidget(parent), backButton_(makeBackButton(this)), title_(makeTitle(this)), search_(new SearchField(this))
{
    setObjectName(QStringLiteral("header"));
    search_->setMinimumWidth(leastSide);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(backButton_, 0, 0, Qt::AlignLeft);
    layout->addWidget(title_, 0, 1, Qt::AlignCenter);
    layout->addWidget(search_, 0, 2, Qt::AlignRight);
    // Equal sides keep the title in the middle.
    layout->setColumnMinimumWidth(0, leastSide);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(2, 1);
}

void HostHeader::setTitle(const QString &title)
{
    title_->setText(title);
}
