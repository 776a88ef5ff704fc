#include "host/ErrorPage.h"

#include "host/HostText.h"

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace {

struct Explanation
{
    PaneFailure failure;
    QString text;
};

QString explanation(PaneFailure failure)
{
    static const Explanation explanations[] = {
        {PaneFailure::NotInstalled,
            QStringLiteral("No settings of this name are installed. Install them, then try again.")},
        {PaneFailure::Missing, QStringLiteral("It is not there any more. Install it again.")},
        {PaneFailure::Damaged, QStringLiteral("It is damaged. Install it again.")},
        {PaneFailure::WrongArchitecture,
            QStringLiteral("It was made for another kind of computer. Install the version for this one.")},
        {PaneFailure::NewerPlatform, QStringLiteral("It needs a newer version of this application. Update Lumaroo.")},
        {PaneFailure::NoPrincipalClass, QStringLiteral("It contains no settings. Install it again.")},
        {PaneFailure::InitialiserFailed, QStringLiteral("It could not start. The system log may say why.")},
        {PaneFailure::NoView, QStringLiteral("Its window content could not be loaded. Install it again.")},
    };
    for (const Explanation &entry : explanations) {
        if (entry.failure == failure)
            return hostText(entry.text);
    }
    return {};
}

QLabel *textLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

ErrorPage::ErrorPage(QWidget *parent)
    : QWidget(parent), heading_(textLabel(QStringLiteral("errorHeading"), this)),
      explanation_(textLabel(QStringLiteral("errorExplanation"), this)),
      detail_(textLabel(QStringLiteral("errorDetail"), this))
{
    setObjectName(QStringLiteral("errorPage"));
    auto *icon = new QLabel(this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(48));
    icon->setAlignment(Qt::AlignHCenter);
    QFont font = heading_->font();
    font.setBold(true);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 1.25);
    heading_->setFont(font);
    detail_->setForegroundRole(QPalette::PlaceholderText);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);
    layout->addStretch(2);
    for (QLabel *label : {icon, heading_, explanation_, detail_})
        layout->addWidget(label);
    layout->addStretch(3);
}

void ErrorPage::setReport(const QString &paneName, const PaneFailureReport &report)
{
    heading_->setText(hostText(QStringLiteral("“%1” cannot be shown")).arg(paneName));
    explanation_->setText(explanation(report.failure));
    detail_->setText(report.detail);
    detail_->setVisible(!report.detail.isEmpty());
    setAccessibleName(heading_->text());
    setAccessibleDescription(explanation_->text());
}
