#pragma once

#include "platform/appkit/controls/StyledLabel.h"

/// A sentence in which keys stand as key caps. Its text is the sentence in letters, for all who do not see the caps.
class LM_APPKIT KeyCapsLine : public StyledLabel
{
    Q_OBJECT

public:
    explicit KeyCapsLine(QWidget *parent = nullptr);

    /// Shows a sentence whose places %1, %2 and so on take the caps of each list. `spoken` is the sentence as a screen
    /// reader says it. An empty sentence shows nothing.
    void setSentence(const QString &sentence, const QList<QStringList> &caps, const QString &spoken);

    bool hasHeightForWidth() const override { return true; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Piece
    {
        QString text;
        bool isCap;
    };

    void addWords(const QString &words);
    QSize sizeOf(const Piece &piece) const;
    int lineHeight() const;
    /// Where the pieces go in lines of a width; the last one is where the next would go.
    QList<QRect> places(int width) const;

    QList<Piece> pieces_;
};
