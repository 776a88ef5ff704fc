#include "platform/appkit/help/internal/viewer/HelpHeader.h"

#include "platform/appkit/help/internal/viewer/HelpText.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

namespace {

constexpr int searchWidth = 240;

QString withKeys(const QString &text, const QKeySequence &keys)
{
    return QStringLiteral("%1 (%2)").arg(text, keys.toString(QKeySequence::NativeText));
}

} // namespace

HelpHeader::HelpHeader(QWidget *parent)
    : QWidget(parent), back(makeButton("helpBack", helpText(QStringLiteral("Back")), Qt::ALT | Qt::Key_Left)),
      forward(makeButton("helpForward", helpText(QStringLiteral("Forward")), Qt::ALT | Qt::Key_Right)),
      smaller(makeButton("helpZoomOut", helpText(QStringLiteral("Smaller text")), QKeySequence::ZoomOut)),
      larger(makeButton("helpZoomIn", helpText(QStringLiteral("Larger text")), QKeySequence::ZoomIn)),
      search(makeSearchField())
{
    back->setArrowType(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    forward->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    smaller->setText(QStringLiteral("A−"));
    larger->setText(QStringLiteral("A+"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 12, 6);
    row->setSpacing(6);
    row->addWidget(back);
    row->addWidget(forward);
    row->addStretch(1);
    row->addWidget(smaller);
    row->addWidget(larger);
    row->addWidget(search);
}

QToolButton *HelpHeader::makeButton(const char *name, const QString &text, const QKeySequence &keys)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1StringView(name));
    button->setAccessibleName(text);
    button->setToolTip(withKeys(text, keys));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QLineEdit *HelpHeader::makeSearchField()
{
    auto *field = new QLineEdit(this);
    field->setObjectName(QStringLiteral("helpSearch"));
    field->setPlaceholderText(helpText(QStringLiteral("Search the help")));
    field->setAccessibleName(field->placeholderText());
    field->setToolTip(withKeys(field->placeholderText(), QKeySequence::Find));
    field->setClearButtonEnabled(true);
    field->setFixedWidth(searchWidth);
    return field;
}
