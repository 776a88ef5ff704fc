#pragma once

#include <QWidget>
#include <optional>

class QLabel;
class QPushButton;
class StyledLabel;

/// What a bar tells, and what can be done about it.
struct Notice
{
    enum class Kind { Warning, Information };
    Kind kind = Kind::Information;
    QString heading;
    QString text;
    QString action; ///< of the button; empty for none
    QString dismissal; ///< of the button that takes the notice away; empty for none

    bool operator==(const Notice &) const = default;
};

/// Stands between the window's header and its page while there is something to tell of the window as a whole. Its
/// content is one column as wide as that of the pages.
class NoticeBar : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent);

    /// Tells it, and an assistive tool that it has come up; hides with none. The same notice again changes nothing.
    void tell(const std::optional<Notice> &notice);

Q_SIGNALS:
    void acted();
    void dismissed();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followPalette();
    void show(const Notice &notice);
    QPixmap symbol() const;

    std::optional<Notice> notice_;
    QLabel *symbol_;
    StyledLabel *heading_;
    StyledLabel *text_;
    QPushButton *action_;
    QPushButton *dismissal_;
    bool following_ = false;
};
